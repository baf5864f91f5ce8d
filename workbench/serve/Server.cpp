#include "workbench/serve/Server.hpp"

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/core/tcp_stream.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/http/span_body.hpp>
#include <set>

#include "workbench/common/errors.hpp"
#include "workbench/platform/sockets.hpp"

namespace workbench {

namespace {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
using boost::system::error_code;
using tcp = asio::ip::tcp;

Request requestOf(http::request<http::string_body>&& message) {
    auto const text = [](boost::string_view const& view) {
        return std::string(view.data(), view.size());
    };
    Request request{.method = text(message.method_string()),
                    .target = text(message.target()),
                    .host = text(message[http::field::host]),
                    .origin = std::nullopt,
                    .contentType = text(message[http::field::content_type]),
                    .body = std::move(message.body())};
    if (auto const origin = message.find(http::field::origin); origin != message.end())
        request.origin = text(origin->value());
    return request;
}

}  // namespace

struct Server::Implementation {
    class Connection;

    Implementation(unsigned short wanted, ServerLimits const& given);

    void accept();
    void take(tcp::socket socket);
    void tick();
    void wakeWaiting();

    ServerLimits limits;
    std::set<Connection*> connections;
    int served = 0;               ///< connections that are not sent away
    asio::io_context context{1};  ///< its end is that of all connections
    tcp::acceptor acceptor{context};
    asio::steady_timer ticker{context};
    asio::steady_timer pause{context};
    Handler* handler = nullptr;
    std::function<bool()> goesOn;
};

/// One client. Lives as long as an operation of its own is under way.
class Server::Implementation::Connection
    : public std::enable_shared_from_this<Server::Implementation::Connection> {
public:
    Connection(Implementation& server, tcp::socket socket, bool isServed)
        : server_(server),
          stream_(std::move(socket)),
          deadline_(server.context),
          isServed_(isServed) {
        server_.connections.insert(this);
        server_.served += isServed_ ? 1 : 0;
    }
    Connection(Connection const&) = delete;
    Connection& operator=(Connection const&) = delete;
    ~Connection() {
        server_.connections.erase(this);
        server_.served -= isServed_ ? 1 : 0;
    }

    void read() {
        parser_.emplace();
        parser_->header_limit(static_cast<std::uint32_t>(server_.limits.header));
        parser_->body_limit(server_.limits.body);
        stream_.expires_after(server_.limits.message);
        http::async_read(
            stream_, buffer_, *parser_,
            [self = shared_from_this()](error_code error, std::size_t) { self->onRead(error); });
    }

    /// Answers before the message is read, or without it, and ends.
    void sendAway(unsigned status, std::string const& reason) {
        keepsAlive_ = false;
        write(errorResponse(status, reason));
    }

    /// Asks the handler again, if an answer is due.
    void tryAnswer(bool isLast) {
        if (!request_)
            return;
        if (std::optional<Response> response = server_.handler->answer(*request_, isLast)) {
            bool const isChange = request_->method == "POST";
            request_.reset();
            ++turn_;
            deadline_.cancel();
            write(std::move(*response));
            if (isChange)
                server_.wakeWaiting();
        }
    }

private:
    void onRead(error_code error) {
        if (error == http::error::body_limit)
            return sendAway(
                413, "the message has more than " + std::to_string(server_.limits.body) + " bytes");
        if (error == http::error::header_limit || error == http::error::buffer_overflow)
            return sendAway(431, "the headers have more than " +
                                     std::to_string(server_.limits.header) + " bytes");
        bool const isBad =
            error && error.category() == http::make_error_code(http::error::bad_method).category();
        if (isBad && error != http::error::end_of_stream && error != http::error::partial_message)
            return sendAway(400, "this is no HTTP message");
        if (error)
            return;
        keepsAlive_ = parser_->get().keep_alive();
        request_ = requestOf(parser_->release());
        tryAnswer(false);
        if (request_)
            waitForChange();
    }

    void waitForChange() {
        deadline_.expires_after(server_.limits.wait);
        deadline_.async_wait([self = shared_from_this()](error_code error) {
            if (!error)
                self->tryAnswer(true);
        });
        stream_.expires_never();
        stream_.socket().async_wait(tcp::socket::wait_read,
                                    [self = shared_from_this(), turn = ++turn_](error_code error) {
                                        if (!error && turn == self->turn_)
                                            self->onReadable();
                                    });
    }

    /// While it waits a client has nothing to say but that it is gone.
    void onReadable() {
        error_code error;
        if (request_ && stream_.socket().available(error) == 0) {
            request_.reset();
            deadline_.cancel();
        }
    }

    void write(Response response) {
        response_ = std::move(response);
        message_.emplace();
        message_->result(response_.status);
        message_->version(11);
        message_->keep_alive(keepsAlive_);
        for (auto const& [name, value] : commonHeaders())
            message_->set(name, value);
        for (auto const& [name, value] : response_.headers)
            message_->set(name, value);
        if (!response_.type.empty())
            message_->set(http::field::content_type, response_.type);
        message_->body() = beast::span<char const>(response_.body.data(), response_.body.size());
        message_->prepare_payload();
        stream_.expires_after(server_.limits.answer);
        http::async_write(stream_, *message_,
                          [self = shared_from_this()](error_code error, std::size_t) {
                              if (!error)
                                  self->onWritten();
                          });
    }

    void onWritten() {
        response_ = {};
        if (keepsAlive_)
            return read();
        error_code error;
        stream_.socket().shutdown(tcp::socket::shutdown_send, error);
        stream_.expires_after(server_.limits.message / 5);
        drain();
    }

    /// Reads what is still under way, so that closing does not take the answer back.
    void drain() {
        buffer_.clear();
        stream_.async_read_some(buffer_.prepare(4096),
                                [self = shared_from_this()](error_code error, std::size_t) {
                                    if (!error)
                                        self->drain();
                                });
    }

    Implementation& server_;
    beast::tcp_stream stream_;
    beast::flat_buffer buffer_;
    std::optional<http::request_parser<http::string_body>> parser_;
    std::optional<Request> request_;  ///< while its answer is due
    Response response_;
    std::optional<http::response<http::span_body<char const>>> message_;
    asio::steady_timer deadline_;
    unsigned turn_ = 0;  ///< counts the waits, so that one that is over is not heard
    bool keepsAlive_ = false;
    bool isServed_;
};

Server::Implementation::Implementation(unsigned short wanted, ServerLimits const& given)
    : limits(given) {
    tcp::endpoint const place(asio::ip::address_v4::loopback(), wanted);
    error_code error;
    acceptor.open(place.protocol(), error);
    if (!error && addressesMayBeReused())
        acceptor.set_option(tcp::acceptor::reuse_address(true), error);
    if (!error)
        acceptor.bind(place, error);
    if (!error)
        acceptor.listen(asio::socket_base::max_listen_connections, error);
    if (error == asio::error::address_in_use)
        throw WorkError("the port " + std::to_string(wanted) +
                        " is in use; --port N names another, and without it any free one is taken");
    if (error)
        throw WorkError("cannot listen on port " + std::to_string(wanted) + ": " +
                        error.default_error_condition().message());
}

void Server::Implementation::accept() {
    acceptor.async_accept([this](error_code error, tcp::socket socket) {
        if (!error)
            take(std::move(socket));
        if (!error)
            return accept();
        pause.expires_after(limits.tick);
        pause.async_wait([this](error_code) { accept(); });  // too many open files, say
    });
}

/// Beyond the limit clients hear so, and beyond twice the limit nothing.
void Server::Implementation::take(tcp::socket socket) {
    if (connections.size() >= 2 * static_cast<std::size_t>(limits.connections))
        return;
    error_code error;
    socket.set_option(tcp::no_delay(true), error);
    bool const isServed = served < limits.connections;
    auto const connection = std::make_shared<Connection>(*this, std::move(socket), isServed);
    if (isServed)
        connection->read();
    else
        connection->sendAway(503, "too many connections are open; close some pages");
}

void Server::Implementation::tick() {
    if (!goesOn()) {
        context.stop();
        return;
    }
    wakeWaiting();
    ticker.expires_after(limits.tick);
    ticker.async_wait([this](error_code error) {
        if (!error)
            tick();
    });
}

/// Answers those that wait for a change, if there was one.
void Server::Implementation::wakeWaiting() {
    std::vector<std::shared_ptr<Connection>> all;
    for (Connection* const each : connections)
        all.push_back(each->shared_from_this());
    for (auto const& each : all)
        each->tryAnswer(false);
}

Server::Server(unsigned short port, ServerLimits const& limits)
    : implementation_(std::make_unique<Implementation>(port, limits)) {}

Server::~Server() = default;

unsigned short Server::port() const {
    return implementation_->acceptor.local_endpoint().port();
}

void Server::run(Handler& handler, std::function<bool()> const& goesOn) {
    implementation_->handler = &handler;
    implementation_->goesOn = goesOn;
    implementation_->accept();
    implementation_->tick();
    implementation_->context.run();
}

}  // namespace workbench
