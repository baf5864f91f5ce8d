/// `telmbench`, the program of the host.
#include <algorithm>
#include <cstdio>
#include <new>

#include "runtime/quartz/text.hpp"
#include "workbench/cli/commands.hpp"
#include "workbench/cli/numbers.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/nearest.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/platform/arguments.hpp"

namespace workbench {

namespace {

enum ExitStatus { Done = 0, WorkFailed = 1, CallWrong = 2 };

constexpr char Summary[] =
    "telmbench loads a plug-in of colour maps, tells what is in it, looks colours up and draws.";

constexpr char Footer[] = R"(Examples:
  telmbench catalogue
  telmbench describe Hypsometric
  telmbench lookup Hypsometric 0.25 0.5
  telmbench ramp Hypsometric -o hypsometric.png
'telmbench COMMAND --help' tells more about a command.

Exit status: 0 done, 1 the work failed, 2 the call was wrong.)";

/// What is wrong with a level of messages; empty if nothing is.
std::string levelProblem(std::string const& text) {
    std::string const number = text.substr(text.starts_with(' ') ? 1 : 0);
    Orlo::TextReader reader(number);
    int level = -1;
    bool const right = reader.number(level) && reader.atEnd() && level >= 0 && level <= 1000;
    return right ? "" : inQuotes(number) + " is no whole number from 0 to 1000";
}

void addCommonOptions(CLI::App& program, SessionOptions& common) {
    auto const setPlugin = [&](std::string const& file) { common.plugin = pathOf(file); };
    program
        .add_option_function<std::string>("--plugin", setPlugin,
                                          "The plug-in to load, instead of the one beside "
                                          "the program")
        ->type_name("FILE");
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
    for (auto* const add :
         {addCatalogue, addColor, addDescribe, addGallery, addLookup, addRamp, addRun})
        add(program, common);
}

/// The arguments as the parser wants them: the last one first, and negative
/// numbers behind a blank, which it would take for options.
std::vector<std::string> forParser(std::vector<std::string> arguments) {
    for (std::string& text : arguments)
        if (text.starts_with('-') && readNumber(text))
            text.insert(0, " ");
    std::ranges::reverse(arguments);
    return arguments;
}

int fail(std::string text, ExitStatus status) {
    std::ranges::replace(text, '\n', ' ');
    std::fprintf(stderr, "telmbench: %s\n", text.c_str());
    return status;
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
    std::vector<std::string> const rest = program.remaining(true);
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
    try {
        program.parse(forParser(arguments));
        return Done;
    } catch (CLI::ParseError const& error) {
        if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success))
            return program.exit(error);  // help, version
        return fail(misuse(program, error), CallWrong);
    } catch (CallError const& error) {
        return fail(error.what(), CallWrong);
    } catch (std::bad_alloc const&) {
        return fail("the memory does not suffice; ask for less", WorkFailed);
    } catch (std::exception const& error) {
        return fail(error.what(), WorkFailed);
    }
}

}  // namespace

}  // namespace workbench

int main(int count, char** texts) {
    return workbench::run(workbench::programArguments(count, texts));
}
