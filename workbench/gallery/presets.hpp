/// What is worth trying with the maps.
#pragma once

#include <string>
#include <vector>

namespace workbench {

/// Parameters set together, and what that shows.
struct Preset {
    std::string caption;
    std::vector<std::string> assignments;  ///< texts NAME=TEXT, in the order of setting
};

/// The presets for the entry of that full key; none for an entry that has no
/// parameters and for one that is not known here.
std::vector<Preset> presetsFor(std::string const& key);

}  // namespace workbench
