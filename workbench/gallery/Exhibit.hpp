/// One entry of the catalogue, as the gallery shows it.
#pragma once

#include <string>
#include <vector>

#include "workbench/gallery/presets.hpp"
#include "workbench/picture/ramp.hpp"
#include "workbench/session/ParameterFacts.hpp"

namespace workbench {

/// A map with parameters set.
struct Variant {
    Preset preset;
    Samples samples;
};

/// All texts are as the plug-in gives them.
struct Exhibit {
    std::string key;
    std::string description;
    std::string source;
    std::vector<std::string> tags;
    int size;  ///< the entries that the map announces
    std::vector<ParameterFacts> parameters;
    Samples samples;  ///< with the defaults
    std::vector<Variant> variants;
};

/// For each exhibit a word of letters, digits and hyphens that no other one has,
/// in either case of the letters; for links and for names of files.
std::vector<std::string> wordsFor(std::vector<Exhibit> const& exhibits);

}  // namespace workbench
