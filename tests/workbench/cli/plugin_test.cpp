/// What a plug-in says while the program works, and how long it stays.
#include <nlohmann/json.hpp>

#include "tests/workbench/cli/telmbench.hpp"
#include "workbench/common/files.hpp"

namespace {

using namespace tests;

Lines const talk{"talk of the load", "talk of the constructor", "talk of the update",
                 "talk of the lookup", "talk of the unload"};

TEST(TalkOfAPlugin, StaysOutOfJson) {
    ProcessResult const result = telmbench(
        {"--plugin", fileBeside("talking_plugin.telm"), "lookup", "Talker", "0.5", "--json"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(nlohmann::ordered_json::parse(result.out).dump(),
              R"([{"value":0.5,"red":0.5,"green":0.5,"blue":0.5,"alpha":1.0}])");
    EXPECT_EQ(result.errLines(), talk);
}

TEST(TalkOfAPlugin, StandsBetweenResultsThatPeopleRead) {
    EXPECT_EQ(results({"--plugin", fileBeside("talking_plugin.telm"), "lookup", "Talker", "0.5"}),
              (Lines{"talk of the load", "talk of the constructor", "talk of the update",
                     "talk of the lookup", "0.5 0.5 0.5 0.5 1", "talk of the unload"}));
}

TEST(TalkOfAPlugin, GoesToStandardErrorWithAMessageOfTheProgram) {
    ProcessResult const result = telmbench(
        {"--plugin", fileBeside("talking_plugin.telm"), "lookup", "Talker", "many", "--json"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.errLines().back(),
              "telmbench: value 1, 'many', is no number within the range of a double, such as 0.5, "
              "-1e-3, 0x1p-4, nan, inf or -inf");
}

#if !defined(_WIN32)

TEST(TalkOfAPlugin, StaysOutOfAPictureOnStandardOutput) {
    TemporaryFolder const folder;
    std::string const plugin = fileBeside("talking_plugin.telm");
    telmbench({"--plugin", plugin, "ramp", "Talker", "-o", textOf(folder / "file.png")});
    for (char const* const name : {"/dev/stdout", "/dev/fd/1", "/proc/self/fd/1"}) {
        ProcessResult const result = telmbench({"--plugin", plugin, "ramp", "Talker", "-o", name});
        EXPECT_EQ(result.status, 0) << name;
        EXPECT_EQ(result.out, workbench::readFile(folder / "file.png")) << name;
        EXPECT_EQ(result.errLines().front(), "talk of the load") << name;
    }
}

#endif

/// The messages that tell of loading, work and unloading, without the entries'
/// own ones between the first and the last of their kind.
Lines turningPoints(Lines const& messages) {
    Lines points;
    for (std::string const& message : messages) {
        std::string const kind = message.substr(0, message.find('('));
        bool const ofEntries =
            kind == "VCreator::VCreator" || kind == "VCreatorBase::~VCreatorBase";
        if (!ofEntries)
            points.push_back(message);
        else if (points.empty() || points.back() != kind)
            points.push_back(kind);
    }
    return points;
}

TEST(Verbosity, MessagesTellTheLifeOfAPluginInItsOrder) {
    ProcessResult const result =
        telmbench({"--verbosity", "100", "lookup", "Hypsometric", "--set", "options=inverse", "0"});
    EXPECT_EQ(result.outLines(), Lines{"0 0.8 0.8 0.9 0"}) << "results stay by themselves";
    EXPECT_EQ(turningPoints(result.errLines()),
              (Lines{
                  "VCreator::VCreator",
                  "VInitialization::initPlugin(0,prism_tinctures,TELM_API_VERSION)",
                  "VCreator::create()",
                  "VCreator::create() got derived object",
                  "VParameter::setGlobalValue() got variable with  inverse",
                  "VInitialization::initPlugin(1,prism_tinctures,TELM_API_VERSION)",
                  "VCreatorBase::~VCreatorBase",
              }));
}

TEST(Verbosity, EntriesGoInTheReverseOrderOfTheirComing) {
    Lines came, gone;
    for (std::string const& message : telmbench({"--verbosity", "100", "catalogue"}).errLines()) {
        std::string const entry = message.substr(message.find('(') + 1);
        if (message.starts_with("VCreator::VCreator("))
            came.push_back(entry);
        if (message.starts_with("VCreatorBase::~VCreatorBase("))
            gone.insert(gone.begin(), entry);
    }
    EXPECT_GE(came.size(), 6U);
    EXPECT_EQ(gone, came);
}

TEST(Verbosity, ALowerLevelShowsLess) {
    Lines const arguments{"lookup", "Hypsometric", "--set", "options=inverse", "0", "--verbosity"};
    auto const messagesAt = [&](std::string const& level) {
        Lines all = arguments;
        all.push_back(level);
        return telmbench(all).errLines();
    };
    EXPECT_EQ(messagesAt("49"), Lines{});
    EXPECT_EQ(messagesAt("50"), Lines{"VParameter::setGlobalValue() got variable with  inverse"});
    EXPECT_EQ(messagesAt("99"), messagesAt("50"));
}

}  // namespace
