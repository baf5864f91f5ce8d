/// `telmbench validate`: whether a plug-in is fit for a host.
#include <algorithm>
#include <random>
#include <sstream>

#include "workbench/cli/Progress.hpp"
#include "workbench/cli/commands.hpp"
#include "workbench/cli/files.hpp"
#include "workbench/cli/json.hpp"
#include "workbench/cli/table.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/platform/StandardOutput.hpp"
#include "workbench/validate/Judge.hpp"

namespace workbench {

namespace {

using namespace validate;

constexpr char Examples[] = R"(Examples:
  telmbench validate ./my_maps.telm
      Judges a plug-in: some minutes.
  telmbench validate ./my_maps.telm --quick
      The same in some seconds.
  telmbench validate ./my_maps.telm --only memory --seed 7
      One group of tests, or one test, as another run with that seed had it.
  telmbench validate --list
      Tells what each test asks.)";

struct Call {
    std::filesystem::path plugin;
    bool quick = false;
    bool soak = false;
    bool json = false;
    bool list = false;
    std::string only;
    std::optional<std::uint64_t> seed;
    double limit = 0;
};

std::string listed() {
    std::vector<TableRow> rows;
    for (Test const& test : allTests())
        rows.push_back({test.name, test.contract});
    return table(rows, "");
}

std::string secondsText(double seconds) {
    char text[32];
    std::snprintf(text, sizeof text, "%.2f s", seconds);
    return text;
}

/// The command that shows a result again.
std::string command(Call const& call, Test const& test) {
    std::string text = "telmbench validate " + textOf(call.plugin) + " --only " + test.name +
                       " --seed " + std::to_string(*call.seed);
    return text + (call.quick ? " --quick" : call.soak ? " --soak" : "");
}

/// The last lines that a process has printed, with a mark before each.
std::string printedLines(std::string const& printed) {
    constexpr std::size_t MostLines = 6;
    std::vector<std::string> lines;
    std::istringstream text(printed);
    for (std::string line; std::getline(text, line);)
        lines.push_back("      | " + printable(line.substr(0, 200)) + "\n");
    std::size_t const first = lines.size() - std::min(lines.size(), MostLines);
    std::string all = first > 0 ? "      | ...\n" : "";
    for (std::size_t i = first; i < lines.size(); ++i)
        all += lines[i];
    return all;
}

/// A line, and below it what a person needs to know.
std::string asText(Call const& call, Result const& result) {
    constexpr std::size_t KindWidth = 10, NameWidth = 32;
    std::string kind(nameOf(result.verdict.kind)), name = result.test.name;
    kind.resize(std::max(KindWidth, kind.size()), ' ');
    if (result.verdict.kind == Kind::Passed || isAgainst(result.verdict.kind)) {
        name.resize(std::max(NameWidth, name.size()), ' ');
        name += secondsText(result.seconds);
    }
    if (result.verdict.kind == Kind::Passed && !result.verdict.seen.empty())
        name += "   " + printable(result.verdict.seen);
    std::string text = kind + name + "\n";
    if (result.verdict.kind == Kind::Passed)
        return text;
    std::string const indent = "      ";
    bool const against = isAgainst(result.verdict.kind);
    text += indent + (against ? "seen:     " : "") + printable(result.verdict.seen) + "\n";
    if (against)
        text += indent + "contract: " + result.test.contract + "\n" + indent +
                "again:    " + command(call, result.test) + "\n" + printedLines(result.printed);
    return text;
}

Json asJson(Call const& call, Result const& result) {
    return {{"test", result.test.name},
            {"result", nameOf(result.verdict.kind)},
            {"seen", result.verdict.seen},
            {"contract", result.test.contract},
            {"command", command(call, result.test)},
            {"seconds", jsonNumber(result.seconds)},
            {"printed", result.printed}};
}

std::size_t countOf(std::vector<Result> const& results, Kind kind) {
    return static_cast<std::size_t>(std::ranges::count_if(
        results, [&](Result const& result) { return result.verdict.kind == kind; }));
}

bool isFit(std::vector<Result> const& results) {
    return std::ranges::none_of(results,
                                [](Result const& each) { return isAgainst(each.verdict.kind); });
}

/// "50 passed, 2 skipped; seed 7"
std::string summary(Call const& call, std::vector<Result> const& results) {
    std::string text;
    for (Kind const kind :
         {Kind::Passed, Kind::Failed, Kind::Crashed, Kind::TimedOut, Kind::Warning, Kind::Skipped})
        if (std::size_t const count = countOf(results, kind); count > 0)
            text += (text.empty() ? "" : ", ") + std::to_string(count) + " " +
                    std::string(nameOf(kind));
    return text + "; seed " + std::to_string(*call.seed) + "\n";
}

std::string document(Call const& call, std::vector<Result> const& results) {
    Json tests = Json::array();
    for (Result const& result : results)
        tests.push_back(asJson(call, result));
    return jsonDocument({{"plugin", textOf(call.plugin)},
                         {"seed", *call.seed},
                         {"fit", isFit(results)},
                         {"tests", tests}});
}

void judgePlugin(Call const& call) {
    if (call.plugin.empty())
        throw CallError("which plug-in? 'telmbench validate FILE' judges one");
    std::error_code error;
    if (!std::filesystem::is_regular_file(call.plugin, error))
        throw CallError("there is no file " + inQuotes(textOf(call.plugin), 1000) + " to judge");
    JudgeOptions options;
    options.plugin = std::filesystem::absolute(call.plugin);
    options.depth = call.quick ? Depth::Quick : call.soak ? Depth::Soak : Depth::Normal;
    options.seed = *call.seed;
    options.limit = call.limit;
    if (!call.only.empty())
        options.tests = testsOf(call.only);
    StandardOutput output(false);
    std::size_t number = 0;
    std::optional<Progress> progress;
    auto const begins = [&](Test const& test, std::size_t count) {
        progress.emplace(std::to_string(++number) + " of " + std::to_string(count) + " " +
                         test.name);
        progress->begin();
    };
    auto const ends = [&](Result const& result) {
        progress.reset();
        if (!call.json)
            output.write(asText(call, result));
    };
    std::vector<Result> const results = judge(options, begins, ends);
    output.write(call.json ? document(call, results) : summary(call, results));
    if (!isFit(results))
        throw WorkError("the plug-in " + inQuotes(textOf(call.plugin), 1000) +
                        " does not keep the contract");
}

void run(Call call) {
    if (!call.seed)
        call.seed = std::random_device()();
    if (call.list)
        StandardOutput(false).write(listed());
    else
        judgePlugin(call);
}

}  // namespace

void addValidate(CLI::App& program, SessionOptions const&) {
    CLI::App* const command = program.add_subcommand(
        "validate", "Judge a plug-in: put it through what a host does to it");
    auto const call = std::make_shared<Call>();
    addFile(*command, "PLUGIN", call->plugin, "The plug-in to judge");
    auto* const quick = command->add_flag("--quick", call->quick, "Take some seconds");
    command->add_flag("--soak", call->soak, "Take hours")->excludes(quick);
    command->add_option("--only", call->only, "Run this test, or this group of tests, alone")
        ->type_name("TEST");
    command
        ->add_option("--seed", call->seed, "The start of all random choices; a run tells its own")
        ->type_name("N");
    command
        ->add_option("--limit", call->limit,
                     "End a test after so many seconds, instead of its own time")
        ->type_name("SECONDS")
        ->check(CLI::PositiveNumber);
    command->add_flag("--list", call->list, "Tell what each test asks");
    command->add_flag("--json", call->json, "Write JSON");
    command->footer(Examples);
    command->callback([call] { run(*call); });
}

}  // namespace workbench
