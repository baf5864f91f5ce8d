/// Maps of the catalogue as files of other programs.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "workbench/export/Form.hpp"
#include "workbench/export/modelOf.hpp"
#include "workbench/session/Session.hpp"

namespace workbench {

/// What is asked for beside the entry and the form.
struct ExportOptions {
    std::vector<std::string> settings = {};  ///< texts NAME=TEXT
    std::optional<Interval> range = {};
    std::optional<double> error = {};
    bool alpha = false;
    std::string maker = {};  ///< the program that writes, with its version
};

/// A map in a form.
struct Exported {
    std::string key;
    Form const* form;
    std::string text;  ///< the file's bytes
    std::vector<std::string> losses;
};

/// Throws `CallError` for an unknown entry or setting, `WorkError` for a map that
/// cannot be taken to pieces.
Exported exportMap(Session const& session, std::string const& key, Form const& form,
                   ExportOptions const& options);

/// Every entry in each of the forms, which must outlive the result; `progress`
/// hears how much is done, from 0 to 1.
std::vector<Exported> exportAll(Session const& session, std::vector<Form> const& forms,
                                ExportOptions const& options,
                                std::function<void(double)> const& progress);

/// Makes the folder, with one for each form, and writes the files, and last of all
/// a page that lists them with what they lost. Gives the files written. Throws
/// `WorkError` that names the file and the reason.
std::vector<std::filesystem::path> writeAll(std::vector<Exported> const& all,
                                            std::filesystem::path const& folder,
                                            std::string const& maker,
                                            std::function<void(double)> const& progress);

}  // namespace workbench
