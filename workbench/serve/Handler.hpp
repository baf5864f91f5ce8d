/// Requests of a browser, answered.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "workbench/serve/Studio.hpp"

namespace workbench {

/// What a browser asks, as far as anything depends on it.
struct Request {
    std::string method;
    std::string target;  ///< path and query, as they stand
    std::string host;
    std::optional<std::string> origin;
    std::string contentType;
    std::string body;
};

/// What it gets.
struct Response {
    unsigned status = 200;
    std::string type = {};
    std::vector<std::pair<std::string, std::string>> headers = {};
    std::string body = {};
};

/// An answer that is an error, as JSON.
Response errorResponse(unsigned status, std::string const& reason);

/// The headers that every answer has.
std::vector<std::pair<std::string, std::string>> const& commonHeaders();

/// Answers requests for a studio.
///
/// Only whoever knows the secret is answered, and only if the browser asks this
/// very server and no page of another one made it ask. No name of a file that comes
/// from outside is ever opened. Threads: one at a time.
class Handler {
public:
    /// `port` is the one that the server listens on; both must live as long as this.
    Handler(Studio& studio, std::string secret, unsigned short port);

    /// The answer; nothing if it is to wait until the studio's revision is another
    /// one. `isLast` says that it waits no longer.
    std::optional<Response> answer(Request const& request, bool isLast = false);

private:
    std::optional<Response> route(Request const& request, bool isLast);
    Response post(std::string_view path, std::optional<std::string> const& viewer,
                  Request const& request);
    std::optional<Response> wait(std::uint64_t after, bool isLast);

    Studio& studio_;
    std::string prefix_;  ///< `/SECRET/`
    std::vector<std::string> hosts_;
};

/// 32 hexadecimal digits that nobody can guess.
std::string newSecret();

}  // namespace workbench
