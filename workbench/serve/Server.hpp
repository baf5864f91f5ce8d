/// The sockets of a small web server.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>

#include "workbench/serve/Handler.hpp"

namespace workbench {

/// What one client may ask of the server, and for how long.
struct ServerLimits {
    std::size_t body = 1024UL * 1024;           ///< bytes of a message
    std::size_t header = 16UL * 1024;           ///< bytes of its headers
    int connections = 32;                       ///< at a time
    std::chrono::milliseconds message{10'000};  ///< from the first wait for it to its end
    std::chrono::milliseconds answer{30'000};   ///< until the client has taken it
    std::chrono::milliseconds wait{20'000};     ///< for a change of the state
    std::chrono::milliseconds tick{100};        ///< between two looks at the rest of the world
};

/// Listens on the loopback device, and reads and writes messages; what they mean is
/// the handler's work. Threads: one.
class Server {
public:
    /// Port 0 is any that is free. Throws `WorkError` if it cannot be had.
    explicit Server(unsigned short port, ServerLimits const& limits = {});
    Server(Server const&) = delete;
    Server& operator=(Server const&) = delete;
    ~Server();

    unsigned short port() const;

    /// Serves until `goesOn`, which is asked at each tick, says no.
    void run(Handler& handler, std::function<bool()> const& goesOn);

private:
    struct Implementation;
    std::unique_ptr<Implementation> implementation_;
};

}  // namespace workbench
