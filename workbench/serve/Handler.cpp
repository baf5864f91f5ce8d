#include "workbench/serve/Handler.hpp"

#include <algorithm>
#include <charconv>
#include <map>
#include <random>

#include "workbench/common/inQuotes.hpp"
#include "workbench/gallery/style.hpp"
#include "workbench/picture/png.hpp"
#include "workbench/serve/pageFiles.hpp"
#include "workbench/serve/pixelRuns.hpp"

namespace workbench {

namespace {

using std::string;
using std::string_view;

constexpr char const* JsonType = "application/json";

/// Thrown for what has a status of its own.
struct Refusal {
    unsigned status;
    string reason;
};

int hexadecimal(char digit) {
    int value = -1;
    std::from_chars(&digit, &digit + 1, value, 16);
    return value;
}

/// A part of a query, freed of its percent signs.
string decoded(string_view text) {
    string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        int const high = i + 2 < text.size() && text[i] == '%' ? hexadecimal(text[i + 1]) : -1;
        int const low = high >= 0 ? hexadecimal(text[i + 2]) : -1;
        if (low >= 0) {
            plain += static_cast<char>(high * 16 + low);
            i += 2;
        } else {
            plain += text[i] == '+' ? ' ' : text[i];
        }
    }
    return plain;
}

/// `viewer=Viewer1&x=3`
class Query {
public:
    explicit Query(string_view text) {
        while (!text.empty()) {
            string_view const part = text.substr(0, text.find('&'));
            text.remove_prefix(std::min(part.size() + 1, text.size()));
            std::size_t const sign = std::min(part.find('='), part.size());
            values_[decoded(part.substr(0, sign))] =
                decoded(part.substr(std::min(sign + 1, part.size())));
        }
    }

    std::optional<string> find(string const& name) const {
        auto const found = values_.find(name);
        return found == values_.end() ? std::nullopt : std::optional(found->second);
    }

    string text(string const& name) const {
        std::optional<string> found = find(name);
        if (!found)
            throw CallError("the address lacks " + name + "=...");
        return *std::move(found);
    }

    template <class Number>
    Number number(string const& name) const {
        string const value = text(name);
        Number number{};
        char const* const end = value.data() + value.size();
        auto const [stop, error] = std::from_chars(value.data(), end, number);
        if (error != std::errc() || stop != end || value.empty())
            throw CallError(inQuotes(value) + ", given as " + name + ", is no whole number");
        return number;
    }

private:
    std::map<string, string> values_;
};

string_view typeOf(string_view file) {
    if (file.ends_with(".html"))
        return "text/html; charset=utf-8";
    if (file.ends_with(".css"))
        return "text/css; charset=utf-8";
    if (file.ends_with(".js"))
        return "text/javascript; charset=utf-8";
    return file.ends_with(".svg") ? "image/svg+xml" : "application/octet-stream";
}

Response json(string body) {
    return {.type = JsonType, .body = std::move(body)};
}

Response png(string body) {
    return {.type = "image/png", .body = std::move(body)};
}

Response pixels(Studio& studio, string const& viewer) {
    std::shared_ptr<Image const> const image = studio.picture(viewer);
    return {.type = "application/octet-stream",
            .headers = {{"X-Width", std::to_string(image->width())},
                        {"X-Height", std::to_string(image->height())},
                        {"X-Revision", std::to_string(studio.revision())}},
            .body = pixelRuns(*image)};
}

/// A name as it may stand in a header.
string headerName(string const& name) {
    string plain;
    for (char const each : name)
        plain += each < ' ' || each > '~' || each == '"' || each == '\\' ? '_' : each;
    return plain;
}

Response network(Studio& studio) {
    return {.type = "text/plain; charset=utf-8",
            .headers = {{"Content-Disposition",
                         "attachment; filename=\"" + headerName(studio.title()) + "\""}},
            .body = studio.text()};
}

using Answer = Response (*)(Studio&, Query const&);

struct Route {
    string_view path;
    Answer answer;
};

constexpr Route Routes[] = {
    {"pixels",
     [](Studio& studio, Query const& query) { return pixels(studio, query.text("viewer")); }},
    {"picture.png",
     [](Studio& studio, Query const& query) {
         return png(encodePng(*studio.picture(query.text("viewer"))));
     }},
    {"probe",
     [](Studio& studio, Query const& query) {
         return json(
             studio.probe(query.text("viewer"), query.number<int>("x"), query.number<int>("y")));
     }},
    {"glass",
     [](Studio& studio, Query const& query) {
         return Response{.type = "text/html; charset=utf-8",
                         .body = studio.glass(query.text("object"))};
     }},
    {"icon",
     [](Studio& studio, Query const& query) { return png(studio.icon(query.text("object"))); }},
    {"gallery.css",
     [](Studio&, Query const&) {
         return Response{.type = "text/css; charset=utf-8", .body = Style};
     }},
    {"catalogue", [](Studio& studio, Query const&) { return json(studio.catalogue()); }},
    {"ramp",
     [](Studio& studio, Query const& query) { return png(studio.ramp(query.text("key"))); }},
    {"network.telm", [](Studio& studio, Query const&) { return network(studio); }},
    {"command",
     [](Studio& studio, Query const&) {
         return Response{.type = "text/plain; charset=utf-8", .body = studio.command()};
     }},
};

std::optional<Response> pageFile(string_view path) {
    string_view const name = path.empty() ? "index.html" : path;
    for (PageFile const& file : pageFiles())
        if (file.name == name)
            return Response{.type = string(typeOf(name)), .body = string(file.text)};
    return std::nullopt;
}

}  // namespace

Response errorResponse(unsigned status, string const& reason) {
    return {.status = status, .type = JsonType, .body = jsonText(Json{{"error", reason}})};
}

std::vector<std::pair<string, string>> const& commonHeaders() {
    static std::vector<std::pair<string, string>> const headers{
        {"Content-Security-Policy",
         "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self' data: blob:; "
         "connect-src 'self'; base-uri 'none'; form-action 'none'; frame-ancestors 'none'"},
        {"X-Content-Type-Options", "nosniff"},
        {"Referrer-Policy", "no-referrer"},
        {"Cache-Control", "no-store"}};
    return headers;
}

Handler::Handler(Studio& studio, string secret, unsigned short port)
    : studio_(studio), prefix_("/" + std::move(secret) + "/") {
    for (char const* const name : {"127.0.0.1:", "localhost:"})
        hosts_.push_back(name + std::to_string(port));
}

std::optional<Response> Handler::answer(Request const& request, bool isLast) {
    try {
        return route(request, isLast);
    } catch (Refusal const& refusal) {
        return errorResponse(refusal.status, refusal.reason);
    } catch (NotThere const& error) {
        return errorResponse(404, error.what());
    } catch (Conflict const& error) {
        return errorResponse(409, error.what());
    } catch (CallError const& error) {
        return errorResponse(400, error.what());
    } catch (std::bad_alloc const&) {
        return errorResponse(500, "the memory does not suffice; ask for less");
    } catch (std::exception const& error) {
        return errorResponse(500, error.what());
    }
}

std::optional<Response> Handler::route(Request const& request, bool isLast) {
    auto const isOwn = [&](string const& host) {
        return std::ranges::any_of(hosts_, [&](string const& own) { return host == own; });
    };
    if (!isOwn(request.host))
        throw Refusal{403, "this server answers for itself alone, not for another host"};
    if (request.origin && !(request.origin->starts_with("http://") &&
                            isOwn(request.origin->substr(string_view("http://").size()))))
        throw Refusal{403, "pages of others are not answered"};
    if (!request.target.starts_with(prefix_))
        return Response{.status = 404,
                        .type = "text/plain; charset=utf-8",
                        .body = "Open the whole address that telmbench printed.\n"};
    string_view const target = string_view(request.target).substr(prefix_.size());
    string_view const path = target.substr(0, target.find('?'));
    Query const query(target.substr(std::min(path.size() + 1, target.size())));
    if (request.method == "POST")
        return post(path, query.find("viewer"), request);
    if (request.method != "GET")
        throw Refusal{405, "only GET and POST are answered"};
    if (path == "state")
        return query.find("after") ? wait(query.number<std::uint64_t>("after"), isLast)
                                   : json(studio_.state());
    for (Route const& route : Routes)
        if (route.path == path)
            return route.answer(studio_, query);
    if (std::optional<Response> file = pageFile(path))
        return file;
    throw Refusal{404, "there is nothing at this address"};
}

std::optional<Response> Handler::wait(std::uint64_t after, bool isLast) {
    if (studio_.revision() > after)
        return json(studio_.state());
    return isLast ? std::optional(Response{.status = 204}) : std::nullopt;
}

/// The type of the body keeps foreign pages out that know the address: browsers let
/// them send no such body.
Response Handler::post(string_view path, std::optional<string> const& viewer,
                       Request const& request) {
    if (path != "edit")
        throw Refusal{404, "there is nothing at this address to send to"};
    if (request.contentType != JsonType && !request.contentType.starts_with(string(JsonType) + ";"))
        throw Refusal{415, "a change must be sent as application/json"};
    std::uint64_t const revision = studio_.edit(request.body);
    if (viewer)
        try {
            return pixels(studio_, *viewer);
        } catch (std::exception const&) {
            // The change is made. Whoever asks for the picture hears why there is none.
        }
    return json(jsonText(Json{{"revision", revision}}));
}

string newSecret() {
    constexpr char Digits[] = "0123456789abcdef";
    std::random_device device;
    string secret;
    for (int i = 0; i < 32; ++i)
        secret += Digits[device() % 16];
    return secret;
}

}  // namespace workbench
