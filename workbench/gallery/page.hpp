/// The page that shows all maps.
#pragma once

#include <string>
#include <vector>

#include "workbench/gallery/Exhibit.hpp"

namespace workbench {

/// How many columns ramps have: two for each pixel of the page, for screens that
/// have as many.
inline constexpr std::size_t RampColumns = 1280;

/// The name of the picture of an exhibit's ramp, which lies beside the page.
std::string pictureName(std::string const& word);

/// A section of the page; `word` is its anchor.
std::string section(Exhibit const& exhibit, std::string const& word);

/// A map under the glass, as a part of another page: its ramp, its curves, and what
/// people with colour-vision deficiencies see of it. It holds no style and no
/// script of its own. `name` is what the pictures are called by.
std::string glass(Samples const& samples, std::string const& name);

/// The whole page around its sections. `words` are their anchors; `maker` is
/// what made it.
std::string page(std::vector<Exhibit> const& exhibits, std::vector<std::string> const& words,
                 std::string const& sections, std::string const& maker);

}  // namespace workbench
