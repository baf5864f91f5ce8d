/// Loading and unloading: the order of things, the host's answer, copies, and
/// what is left behind.
#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <memory>
#include <sstream>

#include "host/creators/VActionNotifier.hpp"
#include "host/creators/VCreatorBase.hpp"
#include "host/pointers/Typename.hpp"
#include "runtime/lattice/Catalogue.hpp"
#include "runtime/lattice/PluginReports.hpp"
#include "runtime/lattice/TypeRegistry.hpp"
#include "tests/support/DiagnosticText.hpp"
#include "tests/support/Process.hpp"
#include "tests/support/RecordingSpeaker.hpp"
#include "tests/support/objects.hpp"
#include "tests/support/sanitizers.hpp"
#include "workbench/platform/ownProcess.hpp"
#include "workbench/session/PluginFile.hpp"

namespace tests {
namespace {

using namespace Orlo;
using workbench::heapBytes;
using workbench::isMapped;
using workbench::nextThreadIndex;
using workbench::PluginFile;
using workbench::writtenBytes;

char const PluginName[] = "prism_tinctures.telm";

std::unique_ptr<PluginFile> load(VInitialization& host) {
    return std::make_unique<PluginFile>(workbench::pluginBesideProgram(), host);
}

std::vector<std::string> keys() {
    std::vector<std::string> found;
    for (auto const& creator : catalogue())
        found.push_back(creator->keyname("/"));
    return found;
}

class Loading : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(catalogue().empty());
        takePluginReports();
    }
    void TearDown() override {
        EXPECT_TRUE(catalogue().empty());
        EXPECT_TRUE(inputCreators(typeid(ColormapPtr)).empty());
        EXPECT_EQ(typeCreatorCount(), 0u);
    }
    VInitialization host_;
};

// --- Order

TEST_F(Loading, FillsTheCatalogueBeforeTheAttachIsTold) {
    auto const plugin = load(host_);
    auto const reports = takePluginReports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].reason, VInitialization::ProcessAttach);
    EXPECT_GT(catalogue().size(), 0u);
    EXPECT_EQ(reports[0].creatorsStanding, catalogue().size());
    EXPECT_EQ(inputCreators(typeid(ColormapPtr)).size(), catalogue().size());
    EXPECT_GT(typeCreatorCount(), 0u) << "the value types follow the creators";
}

TEST_F(Loading, TellsTheDetachWhileAllCreatorsStand) {
    auto plugin = load(host_);
    std::size_t const standing = catalogue().size();
    takePluginReports();
    plugin.reset();
    auto const reports = takePluginReports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].reason, VInitialization::ProcessDetach);
    EXPECT_EQ(reports[0].creatorsStanding, standing);
}

TEST_F(Loading, SaysAtVerbosity100EachCreatorThenTheAttachThenTheDetachThenTheTeardown) {
    DiagnosticText const text(100);
    auto plugin = load(host_);
    std::vector<std::string> expected, teardown;
    for (auto const& creator : catalogue()) {
        std::string const entry =
            "(" + creator->keyname("/") + "," + std::to_string(creator->orderNumber()) + ")";
        expected.push_back("VCreator::VCreator" + entry);
        teardown.insert(teardown.begin(), "VCreatorBase::~VCreatorBase" + entry);
    }
    expected.emplace_back("VInitialization::initPlugin(0,prism_tinctures,TELM_API_VERSION)");
    EXPECT_EQ(text.lines(), expected);
    plugin.reset();
    expected.emplace_back("VInitialization::initPlugin(1,prism_tinctures,TELM_API_VERSION)");
    expected.insert(expected.end(), teardown.begin(), teardown.end());
    EXPECT_EQ(text.lines(), expected);
}

TEST_F(Loading, LetsTheLineOfEachCreatorOutAtOnce) {
    setVerbosity(100);
    testing::internal::CaptureStdout();
    auto plugin = load(host_);
    std::size_t const written = writtenBytes();
    std::string const printed = testing::internal::GetCapturedStdout();
    setVerbosity(-1);
    EXPECT_THAT(printed, testing::StartsWith("VCreator::VCreator("));
    EXPECT_GE(written, printed.find("VInitialization::initPlugin"))
        << "the creators have not flushed";
}

TEST_F(Loading, SaysItsLineBeforeItIsRegistered) {
    auto const plugin = load(host_);
    TemporaryFolder const folder;
    std::filesystem::copy_file(workbench::pluginBesideProgram(), folder / "another.telm");
    setVerbosity(100);
    testing::internal::CaptureStdout();
    auto second = std::make_unique<PluginFile>(folder / "another.telm", host_);
    std::istringstream printed(testing::internal::GetCapturedStdout());
    setVerbosity(-1);
    std::vector<std::string> starts;
    for (std::string line; std::getline(printed, line);)
        starts.push_back(line.substr(0, line.find_first_of(":")));
    std::vector<std::string> expected;
    for (std::size_t i = 0; i < catalogue().size() / 2; ++i)
        expected.insert(expected.end(), {"VCreator", "WARNING"});
    expected.emplace_back("VInitialization");
    EXPECT_EQ(starts, expected);
}

TEST_F(Loading, RunsTheInitialiserOfTheElbeSchemeLast) {
    auto const plugin = load(host_);
    EXPECT_EQ(keys().back(), "Colormaps/TulElbeColorScheme");
}

TEST_F(Loading, IsUndoneInReverseTheElbeSchemeFirst) {
    auto plugin = load(host_);
    std::vector<void const*> blocks;
    for (auto const& creator : catalogue())
        blocks.push_back(creator.controlBlock());
    RecordingSpeaker speaker;
    {
        Tracing const on;
        plugin.reset();
    }
    std::vector<void const*> died;
    for (PointerReport const& report : speaker.reports)
        if (report.operation == "dies while counted" && std::ranges::count(blocks, report.block))
            died.push_back(report.block);
    std::ranges::reverse(blocks);
    EXPECT_EQ(died, blocks);
}

/// What a plug-in has built, by control block: its entries and the creators of
/// its value types.
struct Built {
    Built() {
        for (auto const& creator : catalogue()) {
            std::string const key = creator->keyname("/");
            std::string const source = creator->get(VCreatorPropertyElements::Source);
            names[creator->controlBlock()] = key;
            sources[key] = source.empty() ? key : source;
            for (SlotPtr const& slot : inputs(*create(key)))
                addType(key, Nucleo::Typename(slot->parameter()->DefaultValue()->type()));
        }
    }

    void addType(std::string const& key, std::string const& type) {
        auto const slot = findSlotCreator(type);
        if (!slot)
            return;  // no type of the plug-in
        firstToNeed.try_emplace(type, key);
        names[slot.controlBlock()] = "slot of " + type;
        names[findValueCreator(type).controlBlock()] = "value of " + type;
    }

    std::map<void const*, std::string> names;
    std::map<std::string, std::string> sources;      ///< by entry
    std::map<std::string, std::string> firstToNeed;  ///< the entry, by type
};

/// What dies while the plug-in goes is what it has built, in reverse.
TEST_F(Loading, BuildsTheCreatorsOfAValueTypeBehindTheEntriesOfTheFirstSourceThatNeedsIt) {
    auto plugin = load(host_);
    Built const built;
    RecordingSpeaker speaker;
    {
        Tracing const on;
        plugin.reset();
    }
    std::vector<std::string> order;
    for (PointerReport const& report : speaker.reports)
        if (report.operation == "dies while counted" && built.names.contains(report.block))
            order.insert(order.begin(), built.names.at(report.block));
    ASSERT_EQ(order.size(), built.names.size());

    std::string source;  // of the latest entry
    std::map<std::string, std::string> builtBy;
    for (std::size_t i = 0; i < order.size(); ++i)
        if (built.sources.contains(order[i])) {
            source = built.sources.at(order[i]);
            for (auto const& [type, other] : builtBy)
                EXPECT_NE(other, source) << type << " is built between the entries of a source";
        } else if (order[i].starts_with("slot of ")) {
            std::string const type = order[i].substr(8);
            builtBy[type] = source;
            ASSERT_LT(i + 1, order.size());
            EXPECT_EQ(order[++i], "value of " + type) << "the slot creator comes first";
        } else {
            ADD_FAILURE() << order[i] << " stands alone";
        }
    ASSERT_FALSE(builtBy.empty());
    for (auto const& [type, entry] : built.firstToNeed)
        EXPECT_EQ(builtBy[type], built.sources.at(entry)) << type;
}

TEST_F(Loading, LetsNoObjectSurvive) {
    auto plugin = load(host_);
    std::vector<ObjectPtr> objects;
    for (std::string const& key : keys())
        objects.push_back(create(key));
    plugin.reset();
    for (ObjectPtr const& object : objects)
        EXPECT_FALSE(object) << "the holder finds its pointer empty";
}

TEST_F(Loading, RunsTheInitialisersAgainTheSecondTime) {
    auto plugin = load(host_);
    auto const first = keys();
    plugin.reset();
    EXPECT_FALSE(isMapped(PluginName));
    plugin = load(host_);
    EXPECT_EQ(keys(), first);
    EXPECT_TRUE(isMapped(PluginName));
}

// --- The host's answer

class HostAnswer : public Loading, public testing::WithParamInterface<int> {};

TEST_P(HostAnswer, ComesBackThroughTheExportAsItIs) {
    VInitialization host(GetParam());
    EXPECT_EQ(load(host)->answer(), GetParam());
    EXPECT_FALSE(isMapped(PluginName));
}

INSTANTIATE_TEST_SUITE_P(Answers, HostAnswer, testing::Values(1, 2, 42, 65536, 2147483647, -1),
                         [](auto const& each) {
                             return each.param < 0 ? std::string("minus")
                                                   : std::to_string(each.param);
                         });

TEST_F(Loading, AsksTheHostOnce) {
    auto const plugin = load(host_);
    EXPECT_EQ(host_.questions(), 1u);
}

TEST_F(Loading, EndsAtOnceWhenTheHostRefuses) {
    VInitialization refusing(VInitialization::Incompatible);
    EXPECT_THROW(load(refusing), workbench::PluginError);
    EXPECT_FALSE(isMapped(PluginName));
    EXPECT_EQ(takePluginReports().size(), 2u) << "attached, and detached again";
}

TEST_F(Loading, PassesOneAndTheSameTokenToEveryQuestionAndReport) {
    auto plugin = load(host_);
    ASSERT_NE(host_.askedToken(), nullptr);
    EXPECT_STREQ(host_.askedToken(), "TELM_API_VERSION");
    auto const attach = takePluginReports();
    ASSERT_EQ(attach.size(), 1u);
    EXPECT_STREQ(attach[0].moduleName, "prism_tinctures");
    EXPECT_EQ(static_cast<void const*>(attach[0].token), host_.askedToken());
    plugin.reset();
    auto const detach = takePluginReports();
    ASSERT_EQ(detach.size(), 1u);
    EXPECT_EQ(static_cast<void const*>(detach[0].moduleName), attach[0].moduleName);
    EXPECT_EQ(static_cast<void const*>(detach[0].token), attach[0].token);
}

// --- A second copy

/// Two files of the plug-in, both loaded.
class SecondCopy : public Loading {
protected:
    class Listener : public VActionNotifier {
    public:
        void warned(std::string const& text) override {
            std::fflush(stdout);
            warnings.push_back(text);
            printedBefore.push_back(writtenBytes());
        }
        std::vector<std::string> warnings;
        std::vector<std::size_t> printedBefore;
    };

    void SetUp() override {
        Loading::SetUp();
        std::filesystem::copy_file(workbench::pluginBesideProgram(), folder_ / "another.telm");
        first_ = load(host_);
        entries_ = keys();
        testing::internal::CaptureStdout();
        second_ = std::make_unique<PluginFile>(folder_ / "another.telm", host_);
        printed_ = testing::internal::GetCapturedStdout();
        std::erase(printed_, '\r');
    }
    void TearDown() override {
        first_.reset();
        second_.reset();
        Loading::TearDown();
    }

    TemporaryFolder const folder_;
    Listener listener_;
    std::unique_ptr<PluginFile> first_, second_;
    std::vector<std::string> entries_;
    std::string printed_;
};

TEST_F(SecondCopy, LoadsThoughNoneOfItsCreatorsCanRegister) {
    EXPECT_EQ(catalogue().size(), 2 * entries_.size());
    EXPECT_EQ(inputCreators(typeid(ColormapPtr)).size(), entries_.size());
    EXPECT_EQ(second_->answer(), VInitialization::Compatible);
}

TEST_F(SecondCopy, WarnsOnceForEachCreatorOnTheConsoleAndToTheUser) {
    ASSERT_EQ(listener_.warnings.size(), entries_.size());
    std::string console;
    for (std::string const& warning : listener_.warnings) {
        EXPECT_THAT(warning, testing::StartsWith("Could not register Orlo::VInputCreator<"));
        EXPECT_THAT(warning, testing::EndsWith(
                                 " as input creator for type Nucleo::StrongPtr<Orlo::Colormap, "
                                 "Orlo::Colormap>!"));
        console += "WARNING: " + warning + "\n";
    }
    EXPECT_EQ(printed_, console);
}

TEST_F(SecondCopy, WarnsOnTheConsoleFirst) {
    std::size_t console = 0;
    for (std::size_t i = 0; i < listener_.warnings.size(); ++i) {
        console += ("WARNING: " + listener_.warnings[i] + "\n").size();
        EXPECT_GE(listener_.printedBefore[i], console) << listener_.warnings[i];
    }
}

TEST_F(SecondCopy, UnloadedFirstLeavesTheFirstAsItWas) {
    second_.reset();
    EXPECT_FALSE(isMapped("another.telm"));
    EXPECT_EQ(keys(), entries_);
    EXPECT_EQ(inputCreators(typeid(ColormapPtr)).size(), entries_.size());
    EXPECT_TRUE(update(*create(entries_.front()), makePool()));
}

TEST_F(SecondCopy, UnloadedLastStillWorksAlone) {
    first_.reset();
    EXPECT_FALSE(isMapped(PluginName));
    EXPECT_EQ(keys(), entries_);
    EXPECT_TRUE(inputCreators(typeid(ColormapPtr)).empty());
    EXPECT_TRUE(update(*create(entries_.front()), makePool()));
}

TEST_F(SecondCopy, TakesItsCreatorsOutThoughTheHostHadRefusedThem) {
    first_.reset();
    for (auto const& creator : catalogue())
        EXPECT_TRUE(registerVInput(typeid(ColormapPtr), WeakInputCreatorPtr(creator)))
            << "now the host takes them by itself";
    second_.reset();
    EXPECT_TRUE(inputCreators(typeid(ColormapPtr)).empty());
}

TEST_F(SecondCopy, HasObjectsThatTheFirstOnesUnloadLeavesAlone) {
    ObjectPtr const ofFirst = create(entries_.front());
    WeakCreatorPtr const creator = catalogue().back();
    ObjectPtr const ofSecond = creator->create("", Nucleo::Intercube(), nullptr);
    first_.reset();
    EXPECT_FALSE(ofFirst);
    EXPECT_TRUE(ofSecond);
}

// --- Cycles

#if PRISM_ADDRESS_SANITIZER || PRISM_THREAD_SANITIZER
// Each cycle takes longer there. The sanitizer enters an exit function of its
// own beside each of ours and never takes it out again, so that the list of
// exit functions grows; what we leak it reports by itself.
constexpr int Cycles = 200;
constexpr std::size_t MostGrowth = 4096 * Cycles;
#else
// Exactly nothing grows where the allocator keeps no freed pieces to itself, which
// is how the suite runs this program; otherwise it counts those as in use.
constexpr int Cycles = 1000;
constexpr std::size_t MostGrowth = 1024;  // bytes in all
#endif
constexpr int WarmUp = 10;

/// One life of the plug-in: every entry makes an object and a map.
void liveOnce(VInitialization& host) {
    auto const plugin = load(host);
    for (auto const& creator : catalogue())
        update(*creator->create("", Nucleo::Intercube(), nullptr), makePool());
}

TEST(HeapBytes, SeeWhatIsAllocatedAndGivenBack) {
    std::size_t const before = heapBytes();
    auto block = std::make_unique<char[]>(5000);
    block[0] = 1;
    std::size_t const during = heapBytes();
    block.reset();
    EXPECT_GE(during, before + 5000);
    EXPECT_LE(heapBytes(), before + 100);
}

TEST_F(Loading, OverAndOverLeavesNothingBehind) {
    std::size_t bytes = 0;
    unsigned threadIndex = 0;
    for (int i = 0; i < Cycles + WarmUp; ++i) {
        if (i == WarmUp) {
            bytes = heapBytes();
            threadIndex = nextThreadIndex();
        }
        liveOnce(host_);
        ASSERT_EQ(takePluginReports().size(), 2u) << "cycle " << i;
        ASSERT_TRUE(catalogue().empty()) << "cycle " << i;
        ASSERT_TRUE(inputCreators(typeid(ColormapPtr)).empty()) << "cycle " << i;
        ASSERT_EQ(typeCreatorCount(), 0u) << "cycle " << i;
        ASSERT_FALSE(isMapped(PluginName)) << "cycle " << i;
    }
    std::size_t const after = heapBytes();
    std::printf("%d cycles: heap %+lld bytes\n", Cycles,
                static_cast<long long>(after) - static_cast<long long>(bytes));
    EXPECT_LE(after, bytes + MostGrowth);
    EXPECT_EQ(nextThreadIndex(), threadIndex);
}

}  // namespace
}  // namespace tests
