#include "workbench/export/exportAll.hpp"

#include <map>

#include "workbench/common/errors.hpp"
#include "workbench/common/files.hpp"
#include "workbench/export/notation.hpp"
#include "workbench/export/originOf.hpp"
#include "workbench/session/entries.hpp"

namespace workbench {

namespace fs = std::filesystem;

namespace {

/// The call that gives the same file on standard output.
std::vector<std::string> commandOf(std::string const& key, Form const& form,
                                   ExportOptions const& options) {
    std::vector<std::string> words{"telmbench", "export", key, "--format", form.name};
    for (std::string const& setting : options.settings)
        words.insert(words.end(), {"--set", setting});
    if (options.range)
        words.insert(words.end(), {"--range", shortestText(options.range->min) + "," +
                                                  shortestText(options.range->max)});
    if (options.error)
        words.insert(words.end(), {"--error", shortestText(*options.error)});
    if (options.alpha)
        words.emplace_back("--alpha");
    return words;
}

/// A name of a file: letters, digits and `-`.
std::string wordOf(std::string const& key) {
    std::string word = nameIn(key);
    for (char& letter : word)
        if (!((letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
              (letter >= '0' && letter <= '9')))
            letter = '-';
    return word.empty() ? "map" : word.substr(0, 100);
}

/// "gmt-cpt/Glow.cpt"; with a number where the name is taken.
std::vector<std::string> namesOf(std::vector<Exported> const& all) {
    std::vector<std::string> names;
    std::map<std::string, int> taken;
    for (Exported const& exported : all) {
        std::string const stem = std::string(exported.form->name) + "/" + wordOf(exported.key);
        int const number = ++taken[stem];
        names.push_back(stem + (number > 1 ? "-" + std::to_string(number) : "") +
                        exported.form->ending);
    }
    return names;
}

std::string page(std::vector<Exported> const& all, std::vector<std::string> const& names,
                 std::string const& maker) {
    std::string rows;
    for (std::size_t i = 0; i < all.size(); ++i) {
        std::string losses;
        for (std::string const& loss : all[i].losses)
            losses += (losses.empty() ? "" : "; ") + loss;
        rows += "<tr><td>" + escapeXml(all[i].key) + "</td><td><a href=\"" + names[i] + "\">" +
                all[i].form->name + "</a></td><td>" + escapeXml(all[i].form->program) +
                "</td><td>" + (losses.empty() ? "nothing" : escapeXml(losses)) + "</td></tr>\n";
    }
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<title>Colour maps for other programs</title>\n<style>\n"
           "body { font-family: sans-serif; margin: 1em; }\n"
           "table { border-collapse: collapse; }\n"
           "td, th { border: 1px solid #999; padding: 0.2em 0.5em; text-align: left; }\n"
           "</style>\n</head>\n<body>\n<h1>Colour maps for other programs</h1>\n<p>Made by " +
           escapeXml(maker) +
           ".</p>\n<table>\n<tr><th>map</th><th>file</th><th>program</th><th>what it "
           "lost</th></tr>\n" +
           rows + "</table>\n</body>\n</html>\n";
}

}  // namespace

Exported exportMap(Session const& session, std::string const& key, Form const& form,
                   ExportOptions const& options) {
    MapObject const subject(session, key, options.settings);
    Sampling sampling{.range = options.range,
                      .alpha = options.alpha && form.alpha,
                      .beyond = form.beyond,
                      .steps = form.steps};
    sampling.error = options.error.value_or(sampling.error);
    try {
        Model model = modelOf(subject.map(), sampling);
        std::size_t const slivers = dropSlivers(model, form.minPart);
        model.origin =
            originOf(session, subject, options.maker, commandOf(subject.key(), form, options));
        return {.key = subject.key(),
                .form = &form,
                .text = form.write(model),
                .losses = lossesOf(form, model, options.alpha, options.range.has_value(), slivers)};
    } catch (WorkError const& error) {
        throw WorkError(subject.key() + " as " + form.name + ": " + error.what());
    }
}

std::vector<Exported> exportAll(Session const& session, std::vector<Form> const& forms,
                                ExportOptions const& options,
                                std::function<void(double)> const& progress) {
    std::vector<Exported> all;
    double const count = static_cast<double>(forms.size() * session.entries().size());
    for (auto const& entry : session.entries())
        for (Form const& form : forms) {
            progress(static_cast<double>(all.size()) / count);
            all.push_back(exportMap(session, entry->keyname("/"), form, options));
        }
    return all;
}

std::vector<fs::path> writeAll(std::vector<Exported> const& all, fs::path const& folder,
                               std::string const& maker,
                               std::function<void(double)> const& progress) {
    std::vector<std::string> const names = namesOf(all);
    std::vector<fs::path> files;
    for (std::size_t i = 0; i < all.size(); ++i) {
        progress(static_cast<double>(i) / static_cast<double>(all.size()));
        files.push_back(folder / names[i]);
        makeFolder(files.back().parent_path());
        writeFile(files.back(), all[i].text);
    }
    makeFolder(folder);
    files.push_back(folder / "index.html");
    writeFile(files.back(), page(all, names, maker));
    return files;
}

}  // namespace workbench
