/// The forms of other programs' files.
#pragma once

#include <string>
#include <vector>

#include "workbench/export/Model.hpp"

namespace workbench {

/// What a program does with values that lie outside the colours of its file.
enum class Outside {
    Colored,  ///< has a colour of its own for them
    Clamped,  ///< gives them the nearest colour
    Undrawn,  ///< gives them none
};

/// One form of file: what it holds, and how it is written.
struct Form {
    char const* name;     ///< as `--format` takes it
    char const* program;  ///< who reads it
    char const* ending;   ///< of its files, with the dot

    Outside below = Outside::Clamped;
    Outside above = Outside::Clamped;
    bool missing = false;       ///< has a colour for what is no number
    bool alpha = false;         ///< holds alpha
    bool beyond = false;        ///< holds components outside 0 to 1
    bool exactEdges = false;    ///< holds hard edges to the last double
    double minPart = 0.0;       ///< no piece is narrower, as a part of the range
    bool values = true;         ///< holds data values, not only places from 0 to 1
    bool origin = true;         ///< has room for where it comes from
    bool steps = false;         ///< has pieces of one colour only
    bool listsClasses = false;  ///< has classes one by one, and all else as a table
    int maxStops = 0;           ///< how many stops it holds; 0 for any number
    /// How many evenly spaced colours it holds, if it is a table, or makes one of a
    /// map with more stops than it holds.
    int tableSize = 0;
    bool anySize = false;  ///< takes as small a table as serves the map

    /// The whole file.
    std::string (*write)(Model const& model);
};

/// All forms, in the order in which they are listed.
std::vector<Form> const& forms();

/// The form of that name. Throws `CallError` with the nearest names if there is
/// none.
Form const& findForm(std::string const& name);

/// Whether the form has this map as evenly spaced colours.
bool isTable(Form const& form, Model const& model);

/// What any file of a form cannot carry, in a few words each: "alpha",
/// "a colour below the range".
std::vector<std::string> limitsOf(Form const& form);

/// What the form loses of this map, in a sentence each; empty if nothing.
/// `wantsAlpha` if alpha was asked for; `hasRange` if values were; `slivers` pieces were
/// too narrow and are gone.
std::vector<std::string> lossesOf(Form const& form, Model const& model, bool wantsAlpha,
                                  bool hasRange, std::size_t slivers);

}  // namespace workbench
