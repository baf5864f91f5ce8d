/// `telmbench export`: maps for other programs.
#include <optional>

#include "workbench/cli/Progress.hpp"
#include "workbench/cli/commands.hpp"
#include "workbench/cli/files.hpp"
#include "workbench/cli/json.hpp"
#include "workbench/cli/numbers.hpp"
#include "workbench/cli/report.hpp"
#include "workbench/cli/table.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/files.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/export/exportAll.hpp"
#include "workbench/platform/StandardOutput.hpp"

namespace workbench {

namespace {

namespace fs = std::filesystem;

constexpr char Examples[] = R"(Examples:
  telmbench export Hypsometric --format gmt-cpt -o hypsometric.cpt
      The map for GMT, with its colours below, above and for no number.
  telmbench export Topographic --format gdal-txt --range 0,3000 -o heights.txt
      Heights from 0 to 3000 m in the place of 0 to 1, for gdaldem.
  telmbench export Glow --set center=0.3 --format json --error 0.01
      With a parameter set, in fewer and longer pieces, on standard output.
  telmbench export --all --format mpl-py -o modules
      Every entry in one form; without --format in every form, with a page.
  telmbench export --list
      The forms, and what each cannot carry.

A map of hard classes is never blended, and has exactly its colours. All others
are lines, or steps where the form has no lines, within --error of the map. A
line on standard error tells each thing that a form cannot carry of the map;
with --strict nothing is written then. The tables of many maps have alpha 0
throughout, so that colours are opaque without --alpha.)";

struct Arguments {
    std::optional<std::string> key;
    std::optional<std::string> format;
    std::vector<std::string> settings;
    std::optional<std::string> range;
    std::optional<std::string> error;
    fs::path file;
    bool alpha = false;
    bool strict = false;
    bool list = false;
    bool all = false;
    bool json = false;
};

/// What `--list`, `--all` and the export of one map do not take of each other.
void checkTogether(Arguments const& given) {
    auto const refuse = [](bool isGiven, char const* what, char const* beside) {
        if (isGiven)
            throw CallError(std::string(what) + " has no meaning beside " + beside);
    };
    if (given.list) {
        refuse(given.all, "--all", "--list");
        refuse(given.key.has_value(), "KEY", "--list");
        refuse(!given.file.empty(), "-o", "--list");
    } else if (given.all) {
        refuse(given.key.has_value(), "KEY", "--all");
        refuse(!given.settings.empty(), "--set", "--all, as entries have different parameters");
        if (given.file.empty())
            throw CallError("--all writes many files; name their folder by -o DIR");
    } else if (!given.key || !given.format) {
        throw CallError(
            "name an entry and a form, such as 'telmbench export Glow --format csv'; 'telmbench "
            "catalogue' lists the entries, 'telmbench export --list' the forms");
    }
    refuse(given.json && !given.list, "--json", "anything but --list");
}

double readError(std::string const& text) {
    std::optional<double> const error = readNumber(text);
    if (!error || !(*error >= Errors.min && *error <= Errors.max))
        throw CallError("the error " + inQuotes(text) + " is no number from " +
                        shortest(Errors.min) + " to " + shortest(Errors.max) +
                        ", such as 0.002; it is a part of full intensity");
    return *error;
}

ExportOptions optionsOf(Arguments const& given) {
    ExportOptions options{
        .settings = given.settings, .alpha = given.alpha, .maker = "telmbench " PRISM_VERSION};
    if (given.range)
        options.range = readRange(*given.range);
    if (given.error)
        options.error = readError(*given.error);
    return options;
}

std::string joined(std::vector<std::string> const& words) {
    std::string text;
    for (std::string const& word : words)
        text += (text.empty() ? "" : ", ") + word;
    return text.empty() ? "-" : text;
}

std::string listAsText() {
    std::vector<TableRow> rows{{"form", "program", "ending", "cannot carry"}};
    for (Form const& form : forms())
        rows.push_back({form.name, form.program, form.ending, joined(limitsOf(form))});
    return table(rows, "");
}

std::string listAsJson() {
    Json list = Json::array();
    for (Form const& form : forms())
        list.push_back({{"form", form.name},
                        {"program", form.program},
                        {"ending", form.ending},
                        {"cannotCarry", limitsOf(form)}});
    return jsonDocument(list);
}

void reportLosses(Exported const& exported) {
    for (std::string const& loss : exported.losses)
        report(exported.key + " as " + exported.form->name + ": " + loss);
}

/// Reports what is lost; throws `WorkError` if nothing may be.
void checkLosses(std::vector<Exported> const& all, bool strict, bool quiet) {
    std::size_t count = 0;
    for (Exported const& exported : all) {
        count += exported.losses.size();
        if (strict || !quiet)
            reportLosses(exported);
    }
    if (strict && count > 0)
        throw WorkError("nothing is written, since --strict allows no loss, and there " +
                        (count == 1 ? std::string("is one") : "are " + std::to_string(count)));
}

void exportOne(SessionOptions const& common, Arguments const& given) {
    Form const& form = findForm(*given.format);
    ExportOptions const options = optionsOf(given);
    checkOutput(given.file, pluginFiles(common.plugins));
    StandardOutput output(true);
    Session const session(common);
    Exported const exported = exportMap(session, *given.key, form, options);
    checkLosses({exported}, given.strict, false);
    if (given.file.empty() || isStandardOutput(given.file))
        output.write(exported.text);
    else
        writeFile(given.file, exported.text);
}

void exportEvery(SessionOptions const& common, Arguments const& given) {
    std::vector<Form> const chosen =
        given.format ? std::vector<Form>{findForm(*given.format)} : forms();
    ExportOptions const options = optionsOf(given);
    StandardOutput output(true);
    std::vector<Exported> all;
    {
        Session const session(common);
        Progress progress("taking the maps to pieces");
        all = exportAll(session, chosen, options, [&](double part) { progress.show(part); });
    }
    checkLosses(all, given.strict, true);
    Progress progress("writing the files");
    for (fs::path const& file :
         writeAll(all, given.file, options.maker, [&](double part) { progress.show(part); }))
        output.write(textOf(fs::path(file).make_preferred()) + "\n");
}

void run(SessionOptions const& common, Arguments const& given) {
    checkTogether(given);
    if (given.list)
        StandardOutput(false).write(given.json ? listAsJson() : listAsText());
    else if (given.all)
        exportEvery(common, given);
    else
        exportOne(common, given);
}

}  // namespace

void addExport(CLI::App& program, SessionOptions const& common) {
    CLI::App* const command =
        program.add_subcommand("export", "Write a map for another program, in one of many forms");
    auto const given = std::make_shared<Arguments>();
    command->add_option("KEY", given->key, "Full key, or name, of the entry");
    command->add_option("--format", given->format, "The form; --list lists them")
        ->type_name("FORM");
    command->add_option("--set", given->settings, "Set a parameter, as NAME=TEXT")
        ->allow_extra_args(false);
    command
        ->add_option("--range", given->range,
                     "The values at the lower and the upper end of the map, instead of its own")
        ->type_name("MIN,MAX");
    command
        ->add_option("--error", given->error,
                     "How far colours may be off, as a part of full intensity, 0.0001 to 0.25; "
                     "half of 1/255 if it is not given")
        ->type_name("E");
    command->add_flag("--alpha", given->alpha, "Keep alpha; otherwise all colours are opaque");
    command->add_flag("--strict", given->strict, "Write nothing if anything of the map is lost");
    command->add_flag("--list", given->list, "List the forms");
    command->add_flag("--json", given->json, "With --list: write JSON");
    command->add_flag("--all", given->all, "Write every entry, into the folder of -o, with a page");
    addFile(*command, "-o", given->file,
            "The file to write, instead of standard output; with --all the folder");
    command->footer(Examples);
    command->callback([&common, given] { run(common, *given); });
}

}  // namespace workbench
