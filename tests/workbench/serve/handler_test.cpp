/// Requests and what they get: who is answered, with what, and under which headers.
#include "workbench/serve/Handler.hpp"

#include "tests/workbench/serve/StudioTest.hpp"
#include "workbench/picture/png.hpp"
#include "workbench/serve/pixelRuns.hpp"

namespace workbench {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

std::string const Secret = "0123456789abcdef0123456789abcdef";

class HandlerTest : public StudioTest {
protected:
    Request get(std::string const& path) {
        return {.method = "GET",
                .target = "/" + Secret + "/" + path,
                .host = "127.0.0.1:8000",
                .origin = std::nullopt,
                .contentType = "",
                .body = ""};
    }
    Request post(std::string const& body, std::string const& path = "edit") {
        Request request = get(path);
        request.method = "POST";
        request.contentType = "application/json";
        request.body = quoted(body);
        return request;
    }
    Response answer(Request const& request) { return handler_.answer(request, true).value(); }

    Handler handler_{studio_, Secret, 8000};
};

using Requests = HandlerTest;

TEST_F(Requests, GetTheStatusThatTheyDeserve) {
    struct {
        char const* rule;
        unsigned status;
        void (*change)(Request&);
    } const table[] = {
        {"as a browser asks", 200, [](Request&) {}},
        {"by the other name of the machine", 200, [](Request& r) { r.host = "localhost:8000"; }},
        {"another host", 403, [](Request& r) { r.host = "example.org:8000"; }},
        {"another port", 403, [](Request& r) { r.host = "127.0.0.1:8001"; }},
        {"no host", 403, [](Request& r) { r.host = ""; }},
        {"a host that only begins so", 403, [](Request& r) { r.host = "127.0.0.1:8000.org"; }},
        {"its own page", 200, [](Request& r) { r.origin = "http://127.0.0.1:8000"; }},
        {"a page of another", 403, [](Request& r) { r.origin = "http://example.org"; }},
        {"a page of no origin", 403, [](Request& r) { r.origin = "null"; }},
        {"a page of another port", 403, [](Request& r) { r.origin = "http://127.0.0.1:80"; }},
        {"a page by another protocol", 403,
         [](Request& r) { r.origin = "https://127.0.0.1:8000"; }},
        {"no secret", 404, [](Request& r) { r.target = "/state"; }},
        {"another secret", 404,
         [](Request& r) { r.target = "/0123456789abcdef0123456789abcdee/state"; }},
        {"a part of the secret", 404, [](Request& r) { r.target = "/0123/state"; }},
        {"nothing at all", 404, [](Request& r) { r.target = ""; }},
        {"another method", 405, [](Request& r) { r.method = "DELETE"; }},
        {"an unknown place", 404, [](Request& r) { r.target += "s"; }},
        {"a way out of the page's folder", 404,
         [](Request& r) { r.target += "/../../CMakeLists.txt"; }},
        {"a file of the system", 404, [](Request& r) { r.target = "/" + Secret + "//etc/passwd"; }},
        {"a foreign host before a wrong secret", 403,
         [](Request& r) { r.target = "/", r.host = "a"; }},
    };
    for (auto const& each : table) {
        Request request = get("state");
        each.change(request);
        EXPECT_EQ(answer(request).status, each.status) << each.rule;
    }
}

TEST_F(Requests, OfEachPlaceGetItsType) {
    struct {
        char const* path;
        unsigned status;
        char const* type;
    } const table[] = {
        {"", 200, "text/html; charset=utf-8"},
        {"index.html", 200, "text/html; charset=utf-8"},
        {"state", 200, "application/json"},
        {"state?after=0", 200, "application/json"},
        {"state?after=1", 204, ""},
        {"state?after=x", 400, "application/json"},
        {"state?after=-1", 400, "application/json"},
        {"pixels?viewer=Viewer1", 200, "application/octet-stream"},
        {"pixels?viewer=Viewer9", 404, "application/json"},
        {"pixels", 400, "application/json"},
        {"picture.png?viewer=Viewer1", 200, "image/png"},
        {"probe?viewer=Viewer1&x=3&y=4", 200, "application/json"},
        {"probe?viewer=Viewer1&x=3", 400, "application/json"},
        {"probe?viewer=Viewer1&x=3&y=40", 400, "application/json"},
        {"probe?viewer=Viewer1&x=3&y=4294967296", 400, "application/json"},
        {"glass?object=Map", 200, "text/html; charset=utf-8"},
        {"glass?object=%4dap", 200, "text/html; charset=utf-8"},
        {"glass?object=%4", 404, "application/json"},
        {"glass?object=%zz", 404, "application/json"},
        {"icon?object=Map", 200, "image/png"},
        {"icon?object=Slice", 404, "application/json"},
        {"catalogue", 200, "application/json"},
        {"ramp?key=Colormaps%2fGlow", 200, "image/png"},
        {"ramp?key=Colormaps/None", 404, "application/json"},
        {"network.telm", 200, "text/plain; charset=utf-8"},
        {"command", 200, "text/plain; charset=utf-8"},
        {"edit", 404, "application/json"},
    };
    for (auto const& each : table) {
        Response const response = answer(get(each.path));
        EXPECT_EQ(response.status, each.status) << each.path;
        EXPECT_EQ(response.type, each.type) << each.path;
        if (each.status >= 400) {
            EXPECT_FALSE(Json::parse(response.body)["error"].get<std::string>().empty());
        }
    }
}

TEST_F(Requests, ThatChangeSomethingMustSendJson) {
    std::string const change = "{'do':'set','object':'Slice','name':'transparency','text':'1'}";
    Request plain = post(change);
    plain.contentType = "text/plain";
    EXPECT_EQ(answer(plain).status, 415U);
    EXPECT_EQ(studio_.revision(), 1U);
    EXPECT_EQ(answer(post(change)).body, "{\"revision\":2}");
    Request elsewhere = post(change);
    elsewhere.target = get("state").target;
    EXPECT_EQ(answer(elsewhere).status, 404U);
    EXPECT_EQ(answer(post("{}")).status, 400U);
    Request typed = post("{'do':'undo'}");
    typed.contentType = "application/json; charset=utf-8";
    EXPECT_EQ(answer(typed).status, 200U);
}

TEST_F(Requests, ForTheNextStateWaitForIt) {
    EXPECT_FALSE(handler_.answer(get("state?after=1")));
    answer(post("{'do':'move','object':'Map','x':1,'y':2}"));
    std::optional<Response> const response = handler_.answer(get("state?after=1"));
    ASSERT_TRUE(response);
    EXPECT_EQ(Json::parse(response->body)["revision"], 2);
}

using Headers = std::vector<std::pair<std::string, std::string>>;

TEST_F(Requests, ForPixelsGetThoseOfThePicture) {
    Response const pixels = answer(get("pixels?viewer=Viewer1"));
    Image const& image = *studio_.picture("Viewer1");
    EXPECT_EQ(pixels.body, pixelRuns(image));
    EXPECT_EQ(pixels.headers,
              (Headers{{"X-Width", "60"}, {"X-Height", "40"}, {"X-Revision", "1"}}));
    EXPECT_EQ(answer(get("picture.png?viewer=Viewer1")).body, encodePng(image));
}

TEST_F(Requests, ForAChangeMayHaveThePictureItMakes) {
    Response const before = answer(get("pixels?viewer=Viewer1"));
    std::string const change = "{'do':'set','object':'Slice','name':'transparency','text':'0.25'}";
    Response const changed = answer(post(change, "edit?viewer=Viewer1"));
    EXPECT_EQ(studio_.revision(), 2U);
    EXPECT_NE(changed.body, before.body);
    Response const after = answer(get("pixels?viewer=Viewer1"));
    EXPECT_EQ(changed.body, after.body);
    EXPECT_EQ(changed.headers, after.headers);
}

TEST_F(Requests, ForAChangeAreCarriedOutAlsoWithoutAPicture) {
    std::string const change = "{'do':'set','object':'Slice','name':'transparency','text':'0.25'}";
    EXPECT_EQ(answer(post(change, "edit?viewer=Viewer9")).body, "{\"revision\":2}");
    EXPECT_EQ(answer(post("{'do':'set'}", "edit?viewer=Viewer1")).status, 400U);
    EXPECT_EQ(studio_.revision(), 2U);
}

TEST_F(Requests, OfAConflictSaySo) {
    answer(post("{'do':'delete','object':'Legend'}"));
    EXPECT_EQ(answer(get("command")).status, 409U);
}

TEST(Headers, KeepForeignScriptsAndFramesOut) {
    std::map<std::string, std::string> const headers(commonHeaders().begin(),
                                                     commonHeaders().end());
    std::string const policy = headers.at("Content-Security-Policy");
    EXPECT_THAT(policy, HasSubstr("default-src 'none'"));
    EXPECT_THAT(policy, HasSubstr("script-src 'self';"));
    EXPECT_THAT(policy, HasSubstr("frame-ancestors 'none'"));
    EXPECT_EQ(policy.find("unsafe"), std::string::npos);
    EXPECT_EQ(headers.at("X-Content-Type-Options"), "nosniff");
}

TEST(Secrets, AreNewEachTime) {
    std::set<std::string> secrets;
    for (int i = 0; i < 100; ++i) {
        std::string const secret = newSecret();
        EXPECT_EQ(secret.size(), 32U);
        EXPECT_EQ(secret.find_first_not_of("0123456789abcdef"), std::string::npos);
        secrets.insert(secret);
    }
    EXPECT_EQ(secrets.size(), 100U);
}

}  // namespace
}  // namespace workbench
