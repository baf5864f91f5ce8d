/// A client of the server that does as it is told, well or badly.
#pragma once

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/read.hpp>
#include <boost/asio/write.hpp>
#include <string>

namespace workbench {

/// One connection. Whatever fails shows as less text.
class Client {
public:
    explicit Client(unsigned short port) {
        boost::system::error_code ignored;
        socket_.connect({boost::asio::ip::address_v4::loopback(), port}, ignored);
    }

    Client& send(std::string const& text) {
        boost::system::error_code ignored;
        boost::asio::write(socket_, boost::asio::buffer(text), ignored);
        return *this;
    }

    /// All that comes until the server ends the connection.
    std::string rest() {
        boost::system::error_code ignored;
        boost::asio::read(socket_, boost::asio::dynamic_buffer(read_), ignored);
        return std::exchange(read_, {});
    }

    /// The next answer as it stands, by its content length.
    std::string answer() {
        std::size_t end = std::string::npos;
        while ((end = read_.find("\r\n\r\n")) == std::string::npos && readMore()) {
        }
        if (end == std::string::npos)
            return std::exchange(read_, {});
        std::size_t const length = read_.find("Content-Length: ");
        std::size_t const whole =
            end + 4 + (length < end ? std::stoul(read_.substr(length + 16)) : 0);
        while (read_.size() < whole && readMore()) {
        }
        std::string const answer = read_.substr(0, whole);
        read_.erase(0, whole);
        return answer;
    }

private:
    bool readMore() {
        boost::system::error_code error;
        char bytes[65536];
        std::size_t const count = socket_.read_some(boost::asio::buffer(bytes), error);
        read_.append(bytes, count);
        return !error;
    }

    boost::asio::io_context context_;
    boost::asio::ip::tcp::socket socket_{context_};
    std::string read_;
};

/// The status of an answer; 0 if it is none.
inline int statusOf(std::string const& answer) {
    return answer.starts_with("HTTP/1.1 ") ? std::stoi(answer.substr(9)) : 0;
}

/// What follows the headers.
inline std::string bodyOf(std::string const& answer) {
    std::size_t const end = answer.find("\r\n\r\n");
    return end == std::string::npos ? std::string() : answer.substr(end + 4);
}

}  // namespace workbench
