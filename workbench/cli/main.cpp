/// `telmbench`, the program of the host.
#include <algorithm>
#include <new>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "runtime/quartz/text.hpp"
#include "workbench/cli/commands.hpp"
#include "workbench/cli/files.hpp"
#include "workbench/cli/numbers.hpp"
#include "workbench/cli/report.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/nearest.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/platform/StandardOutput.hpp"
#include "workbench/platform/arguments.hpp"

namespace workbench {

namespace {

enum ExitStatus { Done = 0, WorkFailed = 1, CallWrong = 2 };

constexpr char Summary[] =
    "telmbench loads plug-ins of colour maps, tells what is in them, looks colours up and draws.";

constexpr char Footer[] = R"(Examples:
  telmbench catalogue
  telmbench describe Hypsometric
  telmbench lookup Hypsometric 0.25 0.5
  telmbench ramp Hypsometric -o hypsometric.png
'telmbench COMMAND --help' tells more about a command.

Exit status: 0 done, 1 the work failed, 2 the call was wrong.)";

constexpr char NoMemory[] = "the memory does not suffice; ask for less";

/// What is wrong with a level of messages; empty if nothing is.
std::string levelProblem(std::string const& text) {
    Orlo::TextReader reader(text);
    int level = -1;
    bool const right = reader.number(level) && reader.atEnd() && level >= 0 && level <= 1000;
    return right ? "" : inQuotes(text) + " is no whole number from 0 to 1000";
}

void addCommonOptions(CLI::App& program, SessionOptions& common) {
    addFiles(
        program, "--plugin", common.plugins,
        "A plug-in to load, or a folder of them, instead of the one beside the program; may be "
        "given several times");
    program
        .add_option("--verbosity", common.verbosity,
                    "Show the host's messages up to this level on standard error: 50 for "
                    "parameters that are set, 100 for creators and objects too")
        ->type_name("N")
        ->check(levelProblem);
    program.add_flag("--refuse", common.refuse,
                     "Answer the plug-in \"not compatible\", to see what a host that does not "
                     "fit gets");
    program.set_version_flag("--version", "telmbench " PRISM_VERSION);
}

void addCommands(CLI::App& program, SessionOptions const& common) {
    program.require_subcommand(1);
    for (auto* const add : {addCatalogue, addColor, addDescribe, addExport, addGallery, addLookup,
                            addRamp, addRun, addServe, addValidate})
        add(program, common);
}

/// Lets the help of each command show the options of the program too.
void showCommonOptions(CLI::App& program) {
    auto const isCommon = [&](CLI::Option const* option) {
        return option != program.get_help_ptr() && option != program.get_version_ptr();
    };
    std::vector<CLI::Option const*> const common = std::as_const(program).get_options(isCommon);
    std::string const text = CLI::Formatter().make_group("Options of every command", false, common);
    for (CLI::App* const command : program.get_subcommands(nullptr))
        command->footer(text.substr(1) + "\n" + command->get_footer());
}

/// Stands before a text that the parser would take for an option, and is no part
/// of it.
constexpr char Shield = '\x01';

std::string withoutShield(std::string const& text) {
    return text.substr(text.starts_with(Shield) ? 1 : 0);
}

/// The arguments as the parser wants them: the last one first, and shields before
/// negative numbers and before all that stands behind "--".
std::vector<std::string> forParser(std::vector<std::string> arguments) {
    auto const mark = std::ranges::find(arguments, "--");
    auto const behind = mark != arguments.end() ? arguments.erase(mark) : mark;
    for (auto each = arguments.begin(); each != arguments.end(); ++each)
        if (each->starts_with(Shield) ||
            (each->starts_with('-') && (each >= behind || readNumber(*each))))
            each->insert(0, 1, Shield);
    std::ranges::reverse(arguments);
    return arguments;
}

void takeShieldsAway(CLI::App& program) {
    std::vector<CLI::App*> apps = program.get_subcommands(nullptr);
    apps.push_back(&program);
    for (CLI::App* const app : apps)
        for (CLI::Option* const option : app->get_options())
            option->transform(withoutShield);
}

int fail(std::string const& text, ExitStatus status) {
    report(text);
    return status;
}

/// What the parser has to say by itself: help, the version.
int tell(CLI::App const& program, CLI::ParseError const& message) {
    std::ostringstream text;
    program.exit(message, text, text);
    try {
        StandardOutput(false).write(text.str());
        return Done;
    } catch (WorkError const& error) {
        return fail(error.what(), WorkFailed);
    }
}

/// Some errors of the C++ library, in words of our own.
std::string reasonOf(std::filesystem::filesystem_error const& error) {
    return "cannot use " + inQuotes(textOf(error.path1()), 1000) + ": " +
           error.code().default_error_condition().message();
}

/// Whether the text is the C++ library's, which names its own functions.
bool isOfLibrary(std::string const& text) {
    return text.find("std::") != std::string::npos || text.find("_M_") != std::string::npos;
}

std::vector<std::string> commandNames(CLI::App const& program) {
    std::vector<std::string> names;
    for (CLI::App const* const command : program.get_subcommands(nullptr))
        names.push_back(command->get_name());
    return names;
}

/// The long options of the program and of the chosen commands.
std::vector<std::string> optionNames(CLI::App const& program) {
    std::vector<CLI::App const*> apps{&program};
    for (CLI::App const* const command : program.get_subcommands())
        apps.push_back(command);
    std::vector<std::string> names;
    for (CLI::App const* const app : apps)
        for (CLI::Option const* const option : app->get_options())
            for (std::string const& name : option->get_lnames())
                names.push_back("--" + name);
    return names;
}

/// What is wrong with the arguments, and where help is.
std::string misuse(CLI::App const& program, CLI::ParseError const& error) {
    std::vector<CLI::App*> const chosen = program.get_subcommands();
    std::string const remedy = chosen.empty() ? "; 'telmbench --help' lists the commands"
                                              : "; 'telmbench " + chosen.front()->get_name() +
                                                    " --help' tells how to call it";
    auto const isOf = [&](CLI::ExitCodes kind) {
        return error.get_exit_code() == static_cast<int>(kind);
    };
    std::vector<std::string> rest = program.remaining(true);
    std::ranges::transform(rest, rest.begin(), withoutShield);
    auto const option =
        std::ranges::find_if(rest, [](auto const& s) { return s.starts_with('-'); });
    if (option != rest.end())
        return "there is no option " + inQuotes(*option) +
               suggestion(*option, optionNames(program), remedy);
    if (chosen.empty() && rest.empty() && isOf(CLI::ExitCodes::RequiredError))
        return "no command is given" + remedy;
    if (chosen.empty() && !rest.empty())
        return "there is no command " + inQuotes(rest.front()) +
               suggestion(rest.front(), commandNames(program), remedy);
    if (isOf(CLI::ExitCodes::ExtrasError) && !rest.empty())
        return "the argument " + inQuotes(rest.front()) + " is one too many" + remedy;
    return error.what() + remedy;
}

int run(std::vector<std::string> const& arguments) {
    SessionOptions common;
    CLI::App program(Summary, "telmbench");
    program.allow_windows_style_options(false);  // a path may begin with a slash
    program.fallthrough();
    program.footer(Footer);
    addCommonOptions(program, common);
    addCommands(program, common);
    showCommonOptions(program);
    takeShieldsAway(program);
    try {
        program.parse(forParser(arguments));
        return Done;
    } catch (CLI::ParseError const& error) {
        if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success))
            return tell(program, error);
        return fail(misuse(program, error), CallWrong);
    } catch (CallError const& error) {
        return fail(error.what(), CallWrong);
    } catch (std::bad_alloc const&) {
        return fail(NoMemory, WorkFailed);
    } catch (std::length_error const& error) {
        return fail(isOfLibrary(error.what()) ? NoMemory : error.what(), WorkFailed);
    } catch (std::filesystem::filesystem_error const& error) {
        return fail(reasonOf(error), WorkFailed);
    } catch (std::exception const& error) {
        return fail(error.what(), WorkFailed);
    }
}

}  // namespace

}  // namespace workbench

int main(int count, char** texts) {
    return workbench::run(workbench::programArguments(count, texts));
}
