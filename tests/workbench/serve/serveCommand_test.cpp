/// The command, as a program of its own.
#include <csignal>
#include <fstream>
#include <thread>

#include "tests/support/Process.hpp"
#include "tests/workbench/serve/Client.hpp"
#include "tests/workbench/serve/StudioTest.hpp"
#include "workbench/common/files.hpp"

namespace workbench {
namespace {

using testing::HasSubstr;
using testing::SizeIs;
using tests::ProcessResult;

ProcessResult telmbench(std::vector<std::string> const& arguments) {
    return tests::runProcess(tests::programBeside("telmbench"), arguments);
}

TEST(Serve, SaysInOneLineWhatItCannotStartWith) {
    tests::TemporaryFolder const folder;
    writeFile(folder / "other.telm", "no network");
    writeFile(folder / "good.telm", SmallNetwork);
    boost::asio::io_context context;
    boost::asio::ip::tcp::acceptor const taken(context,
                                               {boost::asio::ip::address_v4::loopback(), 0});
    std::string const port = std::to_string(taken.local_endpoint().port());
    struct {
        char const* rule;
        std::vector<std::string> arguments;
        int status;
        std::string reason;
    } const table[] = {
        {"no network", {"serve", (folder / "none.telm").string()}, 1, "none.telm"},
        {"an unreadable one",
         {"serve", (folder / "other.telm").string()},
         1,
         "is no saved network"},
        {"a plug-in that does not load",
         {"--plugin", (folder / "other.telm").string(), "serve", (folder / "good.telm").string()},
         1,
         "cannot be loaded as a library"},
        {"the same, watched",
         {"--plugin", (folder / "other.telm").string(), "serve", "--watch"},
         1,
         "cannot be loaded as a library"},
        {"a port in use", {"serve", "--port", port}, 1, "the port " + port + " is in use"},
        {"no port", {"serve", "--port", "65536"}, 2, "--port"},
    };
    for (auto const& each : table) {
        ProcessResult const result = telmbench(each.arguments);
        EXPECT_EQ(result.status, each.status) << each.rule;
        EXPECT_THAT(result.errLines(), SizeIs(1)) << each.rule;
        EXPECT_THAT(result.err, HasSubstr(each.reason)) << each.rule;
        EXPECT_EQ(result.out, "") << each.rule;
    }
}

#if !defined(_WIN32)

/// The program in the background, ended by Ctrl-C.
class Background {
public:
    /// `path`: where programs are looked for before the usual places.
    explicit Background(std::vector<std::string> const& arguments,
                        std::filesystem::path const& path = {}) {
        std::signal(SIGINT, SIG_DFL);  // what runs in the background may be told to ignore it
        thread_ = std::thread([this, arguments, path] {
            // the shell tells its own number, which is the program's
            std::vector<std::string> words{"-c",
                                           "echo $$ >\"$0\"; PATH=\"$1:$PATH\"; shift; "
                                           "exec \"$@\" >\"$0.out\" 2>\"$0.err\"",
                                           (folder_ / "number").string(), path.string(),
                                           tests::programBeside("telmbench").string()};
            words.insert(words.end(), arguments.begin(), arguments.end());
            result_ = tests::runProcess("/bin/sh", words);
        });
        while (address_.empty() || address_.back() != '\n') {
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
            address_ = textOf("number.out");
        }
    }
    Background(Background const&) = delete;
    Background& operator=(Background const&) = delete;
    ~Background() { end(SIGINT); }

    /// What it printed.
    std::string const& address() const { return address_; }
    /// What it has said on standard error.
    std::string complaint() const { return textOf("number.err"); }

    ProcessResult const& end(int signal) {
        if (thread_.joinable()) {
            pid_t number = 0;
            std::ifstream(folder_ / "number") >> number;
            kill(number, signal);
            thread_.join();
        }
        return result_;
    }

private:
    std::string textOf(std::string const& name) const {
        std::ifstream file(folder_ / name);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    tests::TemporaryFolder folder_;
    std::thread thread_;
    ProcessResult result_;
    std::string address_;
};

TEST(Serve, PrintsItsAddressServesAndEndsByCtrlC) {
    for (int const signal : {SIGINT, SIGTERM}) {
        Background program({"serve", "--watch"});
        std::string const start = "http://127.0.0.1:";
        ASSERT_TRUE(program.address().starts_with(start)) << program.address();
        std::size_t const slash = program.address().find('/', start.size());
        std::string const host = program.address().substr(7, slash - 7);
        std::string const path =
            program.address().substr(slash, program.address().size() - slash - 1);
        EXPECT_EQ(path.size(), 34U);
        Client client(static_cast<unsigned short>(std::stoi(host.substr(host.find(':') + 1))));
        std::string const answer =
            client.send("GET " + path + "state HTTP/1.1\r\nHost: " + host + "\r\n\r\n").answer();
        EXPECT_EQ(statusOf(answer), 200);
        EXPECT_THAT(answer, HasSubstr("\"title\":\"HypsometricSlice.telm\""));
        EXPECT_EQ(program.end(signal).status, 0);
        EXPECT_EQ(program.complaint(), "");
    }
}

/// An opener of the test's own in the place of the system's.
void writeOpener(std::filesystem::path const& folder, std::string const& lines) {
    std::filesystem::path const file = folder / "xdg-open";
    writeFile(file, "#!/bin/sh\n" + lines);
    std::filesystem::permissions(file, std::filesystem::perms::owner_all);
}

TEST(Serve, OpensItsAddressInABrowserThatMayStay) {
    tests::TemporaryFolder const folder;
    std::filesystem::path const opened = folder / "opened";
    writeOpener(folder.path(), "echo \"$1\" >" + opened.string() + ".part; mv " + opened.string() +
                                   ".part " + opened.string() + "\nexec sleep 5\n");
    Background program({"serve", "--open"}, folder.path());
    while (!std::filesystem::exists(opened))
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    EXPECT_EQ(readFile(opened), program.address());
    EXPECT_EQ(program.end(SIGTERM).status, 0);
    EXPECT_EQ(program.complaint(), "");
}

TEST(Serve, ServesAlsoWithoutABrowser) {
    tests::TemporaryFolder const folder;
    writeOpener(folder.path(), "exit 3\n");
    Background program({"serve", "--open"}, folder.path());
    while (program.complaint().empty())
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    EXPECT_THAT(program.complaint(), HasSubstr("no browser could be opened"));
    EXPECT_EQ(program.end(SIGTERM).status, 0);
}

#endif

}  // namespace
}  // namespace workbench
