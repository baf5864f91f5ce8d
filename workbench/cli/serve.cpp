/// `telmbench serve`: a network and every map, live in a browser.
#include <thread>

#include "workbench/cli/commands.hpp"
#include "workbench/cli/files.hpp"
#include "workbench/cli/report.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/files.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/platform/Interruption.hpp"
#include "workbench/platform/StandardOutput.hpp"
#include "workbench/platform/browser.hpp"
#include "workbench/platform/program.hpp"
#include "workbench/serve/Server.hpp"

namespace workbench {

namespace {

constexpr char Examples[] = R"(Examples:
  telmbench serve
      Prints an address; open it in a browser on this computer. Ctrl-C ends.
  telmbench serve HypsometricSlice.telm --open
      The same for a saved network, and opens the address by itself.
  telmbench --plugin build/mine.telm serve --watch
      Loads the plug-in anew whenever its file changes.

The page shows the nodes of the network, lets you turn every parameter, and draws
what the viewers show. Nobody reaches it from another computer.)";

/// Between two looks at the plug-ins' files: 0.3 s.
constexpr int TicksForEachLook = 3;

struct Arguments {
    std::filesystem::path network;
    int port = 0;
    bool watch = false;
    bool open = false;
};

Studio::Setup setupOf(SessionOptions const& common, Arguments const& given) {
    std::filesystem::path const file =
        given.network.empty() ? fileBesideProgram("HypsometricSlice.telm") : given.network;
    std::string const text = readFile(file);
    try {
        static_cast<void>(Script::read(text));
    } catch (WorkError const& error) {
        throw WorkError("the network " + inQuotes(textOf(file), 1000) + " " + error.what());
    }
    return {.session = common, .text = text, .file = textOf(file), .watch = given.watch};
}

/// Beside the serving: some browsers stay in front until they are closed, and must be
/// answered meanwhile.
void open(std::string const& address) {
    std::thread([address] {
        if (!openInBrowser(address))
            report("no browser could be opened; open the address yourself");
    }).detach();
}

void run(SessionOptions const& common, Arguments const& given) {
    Studio::Setup setup = setupOf(common, given);
    StandardOutput output(true);
    Interruption const interruption;
    Server server(static_cast<unsigned short>(given.port));
    Studio studio(std::move(setup));
    std::string const secret = newSecret();
    Handler handler(studio, secret, server.port());
    std::string const address =
        "http://127.0.0.1:" + std::to_string(server.port()) + "/" + secret + "/";
    output.write(address + "\n");
    if (given.open)
        open(address);
    int ticks = 0;
    server.run(handler, [&] {
        if (++ticks % TicksForEachLook == 0)
            studio.look();
        return !Interruption::isRequested();
    });
    Interruption::answer();
}

}  // namespace

void addServe(CLI::App& program, SessionOptions const& common) {
    CLI::App* const command =
        program.add_subcommand("serve", "Show a network and every map live in a browser");
    auto const given = std::make_shared<Arguments>();
    addFile(*command, "NETWORK", given->network, "The saved network; one of its own without it")
        ->type_name("");
    command->add_option("--port", given->port, "The port to listen on; 0 is any that is free")
        ->type_name("N")
        ->check(CLI::Range(0, 65535))
        ->capture_default_str();
    command->add_flag("--watch", given->watch, "Load the plug-in anew whenever its file changes");
    command->add_flag("--open", given->open, "Open the address in the browser");
    command->footer(Examples);
    command->callback([&common, given] { run(common, *given); });
}

}  // namespace workbench
