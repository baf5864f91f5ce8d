/// `telmbench gallery`: all maps on one page.
#include <filesystem>

#include "workbench/cli/Progress.hpp"
#include "workbench/cli/commands.hpp"
#include "workbench/cli/files.hpp"
#include "workbench/cli/report.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/gallery/collect.hpp"
#include "workbench/gallery/write.hpp"
#include "workbench/platform/StandardOutput.hpp"

namespace workbench {

namespace {

namespace fs = std::filesystem;

constexpr char Examples[] = R"(Examples:
  telmbench gallery -o maps
      Makes the folder and writes maps/index.html, with a picture for each map
      beside it. The page needs no network; open it in any browser.
  telmbench --plugin ./other.telm gallery -o others
      The same for another plug-in.

The files written are listed at the end. Files of these names that stood there
are replaced, all others are left alone.)";

/// Looks everything up. The plug-in may write lines of its own meanwhile, so
/// that there is no line of progress yet.
std::vector<Exhibit> collect(SessionOptions const& common) {
    Session const session(common);
    return exhibitsOf(session, [](std::string const& remark) { report(remark); });
}

std::vector<fs::path> write(std::vector<Exhibit> const& exhibits, fs::path const& folder) {
    Progress progress("drawing the maps");
    return writeGallery(exhibits, folder, "telmbench " PRISM_VERSION,
                        [&](double part) { progress.show(part); });
}

void run(SessionOptions const& common, fs::path const& folder) {
    StandardOutput output(true);
    std::vector<Exhibit> const exhibits = collect(common);
    for (fs::path const& file : write(exhibits, folder))
        output.write(textOf(fs::path(file).make_preferred()) + "\n");
}

}  // namespace

void addGallery(CLI::App& program, SessionOptions const& common) {
    CLI::App* const command = program.add_subcommand(
        "gallery", "Show all maps on one page, with their parameters, curves and pictures");
    auto const folder = std::make_shared<fs::path>();
    addFile(*command, "-o", *folder, "The folder to write, which is made if it is missing")
        ->type_name("DIR")
        ->required();
    command->footer(Examples);
    command->callback([&common, folder] { run(common, *folder); });
}

}  // namespace workbench
