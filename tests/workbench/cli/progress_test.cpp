/// The lines of progress, which only a terminal gets.
#include "tests/workbench/cli/telmbench.hpp"

#if !defined(_WIN32)
#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

namespace {

using namespace tests;

/// A terminal that remembers what is written to it.
class Terminal {
public:
    Terminal() : reader_(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)) {
        if (reader_ >= 0 && grantpt(reader_) == 0 && unlockpt(reader_) == 0)
            name_ = ptsname(reader_);
        // What was written is lost as soon as nobody has the other end.
        writer_ = open(name_.c_str(), O_RDWR | O_NOCTTY);
    }
    Terminal(Terminal const&) = delete;
    Terminal& operator=(Terminal const&) = delete;
    ~Terminal() {
        close(writer_);
        close(reader_);
    }

    bool works() const { return writer_ >= 0; }
    std::string const& name() const { return name_; }

    /// What has been written, once there is some.
    std::string text() const {
        char bytes[4096];
        ssize_t const count = read(reader_, bytes, sizeof bytes);
        return {bytes, static_cast<std::size_t>(count > 0 ? count : 0)};
    }

private:
    int reader_;
    int writer_ = -1;
    std::string name_;
};

TEST(Progress, IsShownOnATerminalWhileAPictureIsEncodedAndTakenAway) {
    Terminal const terminal;
    if (!terminal.works())
        GTEST_SKIP() << "the system gives no terminal";
    TemporaryFolder const folder;
    ProcessResult const result =
        runProcess(programBeside("telmbench"), {"ramp", "Glow", "-o", textOf(folder / "new.png")},
                   {}, {.err = terminal.name()});
    EXPECT_EQ(result.status, 0);
    std::string const line = "encoding the picture ...";
    EXPECT_EQ(terminal.text(), "\r" + line + "\r" + std::string(line.size(), ' ') + "\r");
}

TEST(Progress, IsNotShownElsewhere) {
    TemporaryFolder const folder;
    EXPECT_EQ(telmbench({"ramp", "Glow", "-o", textOf(folder / "new.png")}).err, "");
}

}  // namespace

#endif
