/// `telmbench gallery`: all maps on one page.
#include <cstdio>
#include <filesystem>

#include "runtime/quartz/text.hpp"
#include "workbench/cli/Progress.hpp"
#include "workbench/cli/commands.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/files.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/gallery/page.hpp"
#include "workbench/picture/png.hpp"
#include "workbench/platform/StandardOutput.hpp"
#include "workbench/session/MapObject.hpp"

namespace workbench {

namespace {

namespace fs = std::filesystem;
using Orlo::VCreatorBase;

constexpr char Examples[] = R"(Examples:
  telmbench gallery -o maps
      Makes the folder and writes maps/index.html, with a picture for each map
      beside it. The page needs no network; open it in any browser.
  telmbench --plugin ./other.telm gallery -o others
      The same for another plug-in.

The files written are listed at the end. Files of these names that stood there
are replaced, all others are left alone.)";

constexpr int PictureHeight = 128;

/// Says which setting a map does not take, and goes on: a plug-in may have a map
/// of a known key with parameters of its own.
void reportLeftOut(std::string const& key, TellingSetting const& setting, CallError const& error) {
    std::fprintf(stderr, "telmbench: %s: '%s' is left out: %s\n", key.c_str(),
                 setting.caption.c_str(), error.what());
}

std::vector<Variant> variantsOf(Session const& session, std::string const& key) {
    std::vector<Variant> variants;
    for (TellingSetting const& setting : tellingSettings(key)) {
        try {
            MapObject const subject(session, key, setting.assignments);
            variants.push_back({setting, sample(subject.map(), RampColumns)});
        } catch (CallError const& error) {
            reportLeftOut(key, setting, error);
        }
    }
    return variants;
}

std::vector<std::string> tagsOf(VCreatorBase const& entry) {
    std::vector<std::string> tags;
    for (std::string_view const tag : Orlo::splitWords(entry.get(VCreatorBase::Tags), ';'))
        tags.emplace_back(tag);
    return tags;
}

Exhibit exhibitOf(Session const& session, VCreatorBase const& entry) {
    std::string const key = entry.keyname("/");
    MapObject const subject(session, key);
    return {.key = key,
            .description = entry.get(VCreatorBase::Description),
            .source = entry.get(VCreatorBase::Source),
            .tags = tagsOf(entry),
            .size = subject.map().getSize(),
            .parameters = parametersOf(subject.object()),
            .samples = sample(subject.map(), RampColumns),
            .variants = variantsOf(session, key)};
}

/// Looks everything up. The plug-in may write lines of its own meanwhile, so
/// that there is no line of progress yet.
std::vector<Exhibit> collect(SessionOptions const& common) {
    Session const session(common);
    std::vector<Exhibit> exhibits;
    for (auto const& entry : session.entries())
        exhibits.push_back(exhibitOf(session, *entry));
    return exhibits;
}

void makeFolder(fs::path const& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (!fs::is_directory(folder))
        throw WorkError("cannot make the folder " + inQuotes(folder.string(), 1000) + ": " +
                        (error ? error.default_error_condition().message()
                               : std::string("there is a file of that name")));
}

/// Writes the pictures, and the page last, so that it never shows what is not
/// there yet. Gives the files written.
std::vector<fs::path> writeGallery(std::vector<Exhibit> const& exhibits, fs::path const& folder) {
    Progress progress("drawing the maps");
    std::vector<std::string> const words = wordsFor(exhibits);
    std::vector<fs::path> files;
    std::string sections;
    for (std::size_t i = 0; i < exhibits.size(); ++i) {
        progress.show(static_cast<double>(i) / static_cast<double>(exhibits.size()));
        files.push_back(folder / pictureName(words[i]));
        writePng(files.back(), rampOf(exhibits[i].samples, PictureHeight));
        sections += section(exhibits[i], words[i]);
    }
    files.push_back(folder / "index.html");
    writeFile(files.back(), page(exhibits, words, sections, "telmbench " PRISM_VERSION));
    return files;
}

void run(SessionOptions const& common, std::string const& folder) {
    if (folder.empty())
        throw CallError("the folder to write has no name; -o DIR names it");
    StandardOutput output(true);
    std::vector<Exhibit> const exhibits = collect(common);
    makeFolder(folder);
    for (fs::path const& file : writeGallery(exhibits, folder))
        output.write(fs::path(file).make_preferred().string() + "\n");
}

}  // namespace

void addGallery(CLI::App& program, SessionOptions const& common) {
    CLI::App* const command = program.add_subcommand(
        "gallery", "Show all maps on one page, with their parameters, curves and pictures");
    auto const folder = std::make_shared<std::string>();
    command->add_option("-o", *folder, "The folder to write, which is made if it is missing")
        ->type_name("DIR")
        ->required();
    command->footer(Examples);
    command->callback([&common, folder] { run(common, *folder); });
}

}  // namespace workbench
