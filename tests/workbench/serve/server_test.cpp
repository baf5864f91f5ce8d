/// The server at its sockets: what clients get that behave, and those that do not.
#include "workbench/serve/Server.hpp"

#include <atomic>
#include <thread>

#include "tests/workbench/serve/Client.hpp"
#include "tests/workbench/serve/StudioTest.hpp"

namespace workbench {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;

constexpr int Connections = 4;

/// Limits that no test comes to by chance, on however busy a machine, but that of
/// connections.
ServerLimits patient() {
    return {.connections = Connections, .message = 1h, .wait = 1h, .tick = 20ms};
}

/// A server on a thread of its own.
class ServerTest : public testing::Test {
protected:
    explicit ServerTest(ServerLimits const& limits = patient())
        : server_(0, limits), thread_([this] {
              Studio studio({.text = SmallNetwork, .file = "small.telm"});
              Handler handler(studio, "secret", server_.port());
              server_.run(handler, [this] { return !isOver_; });
          }) {}
    ~ServerTest() override {
        isOver_ = true;
        thread_.join();
    }

    std::string head(std::string const& method, std::string const& path) const {
        return method + " /secret/" + path +
               " HTTP/1.1\r\nHost: 127.0.0.1:" + std::to_string(server_.port()) + "\r\n";
    }
    std::string get(std::string const& path) const { return head("GET", path) + "\r\n"; }
    std::string post(std::string const& body) const {
        return head("POST", "edit") +
               "Content-Type: application/json\r\nContent-Length: " + std::to_string(body.size()) +
               "\r\n\r\n" + body;
    }
    Client client() const { return Client(server_.port()); }

    Server server_;
    std::atomic<bool> isOver_ = false;
    std::thread thread_;  // behind all that it uses
};

TEST_F(ServerTest, AnswersOneMessageBehindAnother) {
    Client one = client();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(statusOf(one.send(get("state")).answer()), 200);
    one.send(get("state") + get("nowhere") + get("catalogue"));
    EXPECT_EQ(statusOf(one.answer()), 200);
    EXPECT_EQ(statusOf(one.answer()), 404);
    EXPECT_EQ(statusOf(one.answer()), 200);
}

void expectCommonHeaders(std::string const& answer) {
    for (auto const& [name, value] : commonHeaders())
        EXPECT_THAT(answer, HasSubstr(name + ": " + value + "\r\n"));
}

TEST_F(ServerTest, SendsTheCommonHeadersWithEachAnswer) {
    Client one = client();
    for (char const* const path : {"state", "nowhere"})
        expectCommonHeaders(one.send(get(path)).answer());
}

TEST_F(ServerTest, TwoPagesSeeTheSameState) {
    Client one(server_.port()), other(server_.port());
    other.send(get("state?after=1"));
    EXPECT_EQ(bodyOf(one.send(post(R"({"do":"move","object":"Map","x":1,"y":2})")).answer()),
              "{\"revision\":2}");
    std::string const seen = other.answer();
    EXPECT_EQ(statusOf(seen), 200);
    EXPECT_EQ(bodyOf(seen), bodyOf(one.send(get("state")).answer()));
}

TEST_F(ServerTest, TellsClientsWhatTheySendTooMuchOf) {
    struct {
        char const* rule;
        std::string message;
        int status;
    } const table[] = {
        {"a body of 1 MB", post(std::string(1024UL * 1024, ' ')), 400},
        {"a body of a byte more", post(std::string(1024UL * 1024 + 1, ' ')), 413},
        {"a body that only says to be too long",
         head("POST", "edit") + "Content-Length: 4000000000\r\n\r\n", 413},
        {"headers of 15 KB", head("GET", "state") + "A: " + std::string(15000, 'a') + "\r\n\r\n",
         200},
        {"headers of 17 KB", head("GET", "state") + "A: " + std::string(17000, 'a') + "\r\n\r\n",
         431},
        {"an address of 17 KB", get("state?" + std::string(17000, 'a')), 431},
        {"no HTTP", "hello\r\n\r\n", 400},
        {"zeros", std::string(100, '\0'), 400},
        {"a body of no length", head("POST", "edit") + "Content-Length: x\r\n\r\n", 400},
    };
    for (auto const& each : table)
        EXPECT_EQ(statusOf(client().send(each.message).answer()), each.status) << each.rule;
}

/// One that waits for nobody.
class HastyServerTest : public ServerTest {
protected:
    HastyServerTest()
        : ServerTest({.connections = Connections, .message = 400ms, .wait = 300ms, .tick = 20ms}) {}
};

TEST_F(HastyServerTest, TellsWhoWaitsThatNothingCame) {
    std::string const answer = client().send(get("state?after=1")).answer();
    EXPECT_EQ(statusOf(answer), 204);
    expectCommonHeaders(answer);
}

TEST_F(HastyServerTest, CutsOffWhoIsSilentOrSlow) {
    struct {
        char const* rule;
        std::string message;
    } const table[] = {
        {"says nothing", ""},
        {"stops in the headers", "GET /secret/state HTTP/1.1\r\nHo"},
        {"stops in the body", head("POST", "edit") + "Content-Length: 100\r\n\r\n{"}};
    for (auto const& each : table)
        EXPECT_EQ(client().send(each.message).rest(), "") << each.rule;
}

TEST_F(HastyServerTest, CutsOffWhoSendsAByteNowAndThen) {
    Client slow(server_.port());
    std::thread sender([&] {
        for (char const each : get("state") + std::string(40, '\n')) {
            slow.send(std::string(1, each));
            std::this_thread::sleep_for(20ms);
        }
    });
    EXPECT_EQ(slow.rest(), "");
    sender.join();
}

TEST_F(ServerTest, SendsAwayWhoIsOneTooMany) {
    std::vector<std::unique_ptr<Client>> taken;
    for (int i = 0; i < Connections; ++i) {
        taken.push_back(std::make_unique<Client>(server_.port()));
        ASSERT_EQ(statusOf(taken.back()->send(get("state")).answer()), 200);
    }
    std::string const refused = client().rest();
    EXPECT_EQ(statusOf(refused), 503);
    EXPECT_THAT(refused, HasSubstr("too many connections"));
    taken.clear();
    int status = 0;  // as soon as it has heard that they are gone
    for (int i = 0; i < 100 && status != 200; ++i)
        status = statusOf(client().send(get("state")).answer());
    EXPECT_EQ(status, 200);
}

TEST_F(ServerTest, ForgetsWhoWaitsAndGoes) {
    for (int i = 0; i < 3 * Connections; ++i)
        client().send(get("state?after=1"));
    int status = 0;
    for (int i = 0; i < 100 && status != 200; ++i)
        status = statusOf(client().send(get("state")).answer());
    EXPECT_EQ(status, 200);
}

TEST_F(ServerTest, TakesNoPortFromAnother) {
    EXPECT_THROW(Server(server_.port()), WorkError);
    try {
        Server const second(server_.port());
    } catch (WorkError const& error) {
        EXPECT_THAT(error.what(),
                    HasSubstr("the port " + std::to_string(server_.port()) + " is in use"));
    }
}

}  // namespace
}  // namespace workbench
