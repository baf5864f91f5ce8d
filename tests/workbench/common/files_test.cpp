#include "workbench/common/files.hpp"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/support/Process.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/paths.hpp"

#if !defined(_WIN32)
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#endif

namespace {

namespace fs = std::filesystem;
using workbench::isSameFile;
using workbench::readFile;
using workbench::textOf;
using workbench::WorkError;
using workbench::writeFile;

/// What the call's error says; empty if there is none.
template <class Call>
std::string errorOf(Call const& call) {
    try {
        call();
        return {};
    } catch (WorkError const& error) {
        return error.what();
    }
}

TEST(Files, BytesComeBackAsTheyWere) {
    tests::TemporaryFolder const folder;
    std::string bytes("\r\n\0\x1a\xff end", 9);
    bytes.append(100'000, 'x');
    std::size_t const sizes[] = {0,     1,     9,     16383,
                                 16384, 16385, 32768, 100'009};  // blocks have 16384
    for (std::size_t const size : sizes) {
        writeFile(folder / "bytes", bytes.substr(0, size));
        EXPECT_EQ(readFile(folder / "bytes"), bytes.substr(0, size));
    }
}

TEST(Files, ANameMayHoldAnyLetter) {
    tests::TemporaryFolder const folder;
    std::string const name = "h\xc3\xb6he \xe6\xb7\xb1.txt";
    writeFile(folder / name, "x");
    EXPECT_EQ(readFile(folder / name), "x");
    EXPECT_EQ(folder.names(), std::vector{name});
}

TEST(Files, WritingReplacesAndLeavesNothingBeside) {
    tests::TemporaryFolder const folder;
    writeFile(folder / "file", "old and longer");
    writeFile(folder / "file", "new");
    EXPECT_EQ(readFile(folder / "file"), "new");
    EXPECT_EQ(folder.names(), std::vector<std::string>{"file"});
}

TEST(Files, WhatCannotBeReadIsNamedWithTheReason) {
    tests::TemporaryFolder const folder;
    fs::path const missing = folder / "missing";
    EXPECT_EQ(errorOf([&] { readFile(missing); }),
              "cannot read '" + textOf(missing) + "': No such file or directory");
    EXPECT_EQ(errorOf([&] { readFile(folder.path()); }),
              "cannot read '" + textOf(folder.path()) + "': it is a folder");
#if !defined(_WIN32)
    EXPECT_EQ(errorOf([] { readFile("/proc/self/mem"); }),  // where nothing can be read at 0
              "cannot read '/proc/self/mem': Input/output error");
#endif
}

TEST(Files, WhatCannotBeWrittenIsNamedWithTheReason) {
    tests::TemporaryFolder const folder;
    fs::path const nowhere = folder.path() / "no such folder" / "file";
    EXPECT_EQ(errorOf([&] { writeFile(nowhere, "x"); }),
              "cannot write '" + textOf(nowhere) + "': No such file or directory");
    EXPECT_EQ(errorOf([&] { writeFile(folder.path(), "x"); }),
              "cannot write '" + textOf(folder.path()) + "': it is a folder");
    EXPECT_EQ(folder.names(), std::vector<std::string>{});
}

TEST(Files, AFolderWhoseNameIsAFileIsNoPlaceToWrite) {
    tests::TemporaryFolder const folder;
    writeFile(folder / "file", "old");
    EXPECT_NE(errorOf([&] { writeFile(folder.path() / "file" / "inner", "x"); }), "");
    EXPECT_EQ(readFile(folder / "file"), "old");
}

TEST(Files, AWriteProtectedFileIsLeftAlone) {
    tests::TemporaryFolder const folder;
    fs::path const file = folder / "file";
    writeFile(file, "old");
    fs::permissions(file, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    EXPECT_EQ(errorOf([&] { writeFile(file, "new"); }),
              "cannot write '" + textOf(file) + "': it is write-protected");
    EXPECT_EQ(readFile(file), "old");
    EXPECT_EQ(folder.names(), std::vector<std::string>{"file"});
    fs::permissions(file, fs::perms::owner_all);
}

TEST(Files, TwoNamesOfOneFileAreTheSame) {
    tests::TemporaryFolder const folder;
    fs::create_directory(folder / "inner");
    writeFile(folder / "file", "x");
    writeFile(folder / "other", "x");
    EXPECT_TRUE(isSameFile(folder / "file", folder.path() / "." / "inner" / ".." / "file"));
    EXPECT_FALSE(isSameFile(folder / "file", folder / "other"));
    EXPECT_FALSE(isSameFile(folder / "file", folder / "new"));
    EXPECT_TRUE(isSameFile(folder / "new", folder.path() / "." / "new")) << "nor is it there";
    EXPECT_FALSE(isSameFile(folder / "new", folder / "newer"));
    EXPECT_TRUE(isSameFile("new", fs::current_path() / "new"));
}

#if !defined(_WIN32)

/// Lets no file of this process grow beyond a size, for as long as it lives.
class SizeLimit {
public:
    explicit SizeLimit(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit const limit{bytes, before_.rlim_max};
        handler_ = std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    SizeLimit(SizeLimit const&) = delete;
    SizeLimit& operator=(SizeLimit const&) = delete;
    ~SizeLimit() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

private:
    rlimit before_{};
    void (*handler_)(int) = nullptr;
};

TEST(Files, AWriteThatEndsHalfwayHarmsNothing) {
    tests::TemporaryFolder const folder;
    fs::path const file = folder / "file";
    writeFile(file, "old");
    std::string error;
    {
        SizeLimit const limit(50'000);
        error = errorOf([&] { writeFile(file, std::string(100'000, 'x')); });
    }
    EXPECT_EQ(error, "cannot write '" + textOf(file) + "': File too large");
    EXPECT_EQ(readFile(file), "old");
    EXPECT_EQ(folder.names(), std::vector<std::string>{"file"});
}

TEST(Files, ALinkStaysALink) {
    tests::TemporaryFolder const folder;
    writeFile(folder / "target", "old");
    fs::create_symlink("target", folder / "link");
    writeFile(folder / "link", "new");
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(readFile(folder / "target"), "new");
}

TEST(Files, ALinkToWhatIsNotThereYetStaysALink) {
    tests::TemporaryFolder const folder;
    fs::create_symlink("second", folder / "first");
    fs::create_symlink(folder / "target", folder / "second");
    writeFile(folder / "first", "new");
    EXPECT_TRUE(fs::is_symlink(folder / "first"));
    EXPECT_TRUE(fs::is_symlink(folder / "second"));
    EXPECT_EQ(readFile(folder / "target"), "new");
}

TEST(Files, ALinkThatLeadsBackToItselfIsNotReplaced) {
    tests::TemporaryFolder const folder;
    fs::create_symlink("second", folder / "first");
    fs::create_symlink("first", folder / "second");
    EXPECT_EQ(
        errorOf([&] { writeFile(folder / "first", "new"); }),
        "cannot write '" + textOf(folder / "first") + "': it is a link that leads to no file");
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"first", "second"}));
    EXPECT_TRUE(fs::is_symlink(folder / "first"));
}

TEST(Files, LinksLeadToTheSameFileAsItsOwnName) {
    tests::TemporaryFolder const folder;
    writeFile(folder / "file", "x");
    fs::create_symlink("file", folder / "link");
    fs::create_hard_link(folder / "file", folder / "twin");
    fs::create_symlink("new", folder / "dangling");
    EXPECT_TRUE(isSameFile(folder / "file", folder / "link"));
    EXPECT_TRUE(isSameFile(folder / "twin", folder / "file"));
    EXPECT_TRUE(isSameFile(folder / "dangling", folder / "new"));
    EXPECT_FALSE(isSameFile(folder / "dangling", folder / "file"));
    EXPECT_FALSE(isSameFile("/dev/null", "/dev/null")) << "it holds nothing to lose";
}

TEST(Files, AReplacedFileKeepsItsPermissions) {
    tests::TemporaryFolder const folder;
    writeFile(folder / "file", "old");
    fs::permissions(folder / "file", fs::perms::owner_read | fs::perms::owner_write);
    writeFile(folder / "file", "new");
    EXPECT_EQ(fs::status(folder / "file").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

TEST(Files, ADeviceIsWrittenToAndNotReplaced) {
    writeFile("/dev/null", "x");
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_EQ(errorOf([&] { writeFile("/dev/full", "x"); }),
              "cannot write '/dev/full': No space left on device");
}

#endif

}  // namespace
