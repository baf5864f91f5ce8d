/// Plug-ins that are built anew while they are in use.
#include <fstream>

#include "tests/support/Process.hpp"
#include "tests/support/sanitizers.hpp"
#include "tests/workbench/serve/StudioTest.hpp"
#include "workbench/common/files.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/platform/ownProcess.hpp"
#include "workbench/session/PluginFile.hpp"

namespace workbench {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Not;

constexpr char Name[] = "underWork.telm";

/// A studio with a plug-in that is under work.
class Watching : public testing::Test {
protected:
    Watching() { studio_ = std::make_unique<Studio>(setup()); }

    Studio::Setup setup() {
        write(readFile(pluginBesideProgram()));
        return {.session = {.plugins = {folder_ / Name}},
                .text = SmallNetwork,
                .file = "small.telm",
                .watch = true};
    }

    /// Gives the file other bytes, and a time that no file system takes for the same.
    void write(std::string const& bytes) {
        std::ofstream(folder_ / Name, std::ios::binary) << bytes;
        time_ += std::chrono::seconds(2);
        fs::last_write_time(folder_ / Name, time_);
    }

    /// A plug-in again, and another one: a byte behind its end is nobody's.
    std::string nextBuild() {
        return readFile(pluginBesideProgram()) + std::string(++builds_, '\0');
    }

    /// Looks until the file was seen to hold still.
    void look() {
        studio_->look();
        studio_->look();
    }

    Json state() { return Json::parse(studio_->state()); }
    std::string error() {
        Json const error = state()["plugins"][0]["error"];
        return error.is_null() ? "" : error.get<std::string>();
    }

    tests::TemporaryFolder folder_;
    fs::file_time_type time_ = fs::file_time_type::clock::now();
    std::size_t builds_ = 0;
    std::unique_ptr<Studio> studio_;
};

TEST_F(Watching, LoadsACopyAndTakesItAwayInTheEnd) {
    EXPECT_TRUE(fs::remove(folder_ / Name)) << "on Windows a loaded file stays";
    EXPECT_EQ(studio_->picture("Viewer1")->width(), 60);
    studio_.reset();
    for (auto const& each : fs::directory_iterator(fs::temp_directory_path())) {
        bool const isOurs = textOf(each.path().filename()).starts_with("telmbench-");
        EXPECT_FALSE(isOurs && fs::exists(each.path() / "1-0" / Name)) << each.path();
    }
}

TEST_F(Watching, TakesTheNextBuildWithAllThatWasChanged) {
    studio_->edit(R"({"do":"set","object":"Slice","name":"transparency","text":"0.7"})");
    studio_->edit(R"({"do":"create","key":"Colormaps/Glow","x":1,"y":2})");
    std::string const text = studio_->text();
    auto const picture = studio_->picture("Viewer1");
    std::uint64_t const revision = studio_->revision();
    write(nextBuild());
    studio_->look();
    EXPECT_EQ(studio_->revision(), revision) << "the file might not hold still";
    studio_->look();
    EXPECT_EQ(studio_->revision(), revision + 1);
    EXPECT_EQ(studio_->text(), text);
    EXPECT_NE(studio_->picture("Viewer1"), picture) << "it is drawn anew";
    EXPECT_EQ(*studio_->picture("Viewer1"), *picture);
    EXPECT_EQ(error(), "");
    studio_->edit(R"({"do":"undo"})");
    EXPECT_THAT(studio_->text(), Not(HasSubstr("Colormaps/Glow")));
    look();
    EXPECT_EQ(studio_->revision(), revision + 2) << "nothing has changed since";
}

TEST_F(Watching, KeepsAllWhileAFileDoesNotLoad) {
    auto const picture = studio_->picture("Viewer1");
    struct {
        char const* rule;
        std::string bytes;
        char const* reason;
    } const table[] = {
        {"no library", "int main() {}", "underWork.telm' cannot be loaded as a library"},
        {"nothing", "", "underWork.telm' cannot be loaded as a library"},
        {"half a library", readFile(pluginBesideProgram()).substr(0, 30000), "cannot be loaded"},
        {"another library", readFile(tests::programBeside("x").parent_path() / "no_plugin.telm"),
         "lacks the export"},
    };
    for (auto const& each : table) {
        write(each.bytes);
        look();
        EXPECT_THAT(error(), HasSubstr(each.reason)) << each.rule;
        EXPECT_THAT(error(), HasSubstr(textOf(folder_ / Name))) << each.rule;
        EXPECT_EQ(studio_->text(), SmallNetwork) << each.rule;
        EXPECT_EQ(*studio_->picture("Viewer1"), *picture) << each.rule;
        EXPECT_TRUE(state()["complaints"].empty()) << each.rule;
        studio_->edit(
            R"json({"do":"set","object":"Map","name":"startcolor","text":"(0,0,1,1)"})json");
        EXPECT_NE(*studio_->picture("Viewer1"), *picture) << each.rule << ": the old one works";
        studio_->edit(R"({"do":"undo"})");
    }
    write(nextBuild());
    look();
    EXPECT_EQ(error(), "");
    EXPECT_EQ(*studio_->picture("Viewer1"), *picture);
}

TEST_F(Watching, TellsOfAFileThatIsGoneUntilItIsBack) {
    std::string const bytes = readFile(folder_ / Name);
    fs::remove(folder_ / Name);
    look();
    EXPECT_THAT(error(), HasSubstr(Name));
    write(bytes);
    look();
    EXPECT_EQ(error(), "");
}

TEST_F(Watching, DoesNotMindATouchedFile) {
    std::uint64_t const revision = studio_->revision();
    write(readFile(pluginBesideProgram()));
    look();
    look();
    EXPECT_EQ(studio_->revision(), revision);
}

TEST(Watched, FilesThatCannotBeHadAtTheStartAreToldOf) {
    tests::TemporaryFolder const folder;
    writeFile(folder / Name, "nothing");
    Studio::Setup const setup{.session = {.plugins = {folder / Name}},
                              .text = SmallNetwork,
                              .file = "small.telm",
                              .watch = true};
    try {
        Studio const studio(setup);
        FAIL() << "it was loaded";
    } catch (PluginError const& error) {
        EXPECT_THAT(error.what(), HasSubstr(textOf(folder / Name)));
    }
}

TEST_F(Watching, OverAndOverLeavesNothingBehind) {
    constexpr std::size_t WarmUp = 10;
    // The sanitizer enters an exit function of its own beside each of ours and never takes it
    // out again; otherwise the smallest block has 32 bytes.
    constexpr std::size_t Reloads = PRISM_ADDRESS_SANITIZER ? 20 : 200;
    constexpr std::size_t MostGrowth = (PRISM_ADDRESS_SANITIZER ? 4096 : 16) * Reloads;
    std::size_t before = 0;
    unsigned threadIndex = 0;
    auto const turn = [&](std::size_t i) {
        write(i % 5 == 4 ? std::string("no library") : nextBuild());
        look();
        ASSERT_EQ(error().empty(), i % 5 != 4) << i;
        studio_->picture("Viewer1");
        if (i % 5 == 4)
            builds_ = 0;
    };
    for (std::size_t i = 0; i < WarmUp + Reloads; ++i) {
        if (i == WarmUp) {
            before = heapBytes();
            threadIndex = nextThreadIndex();
        }
        turn(i);
    }
    std::size_t const after = heapBytes();
    std::printf("%zu reloads: heap %+lld bytes\n", Reloads,
                static_cast<long long>(after) - static_cast<long long>(before));
    EXPECT_LT(after, before + MostGrowth);
    EXPECT_EQ(nextThreadIndex(), threadIndex);
    EXPECT_TRUE(isMapped(Name));
    studio_.reset();
    EXPECT_FALSE(isMapped(Name));
}

}  // namespace
}  // namespace workbench
