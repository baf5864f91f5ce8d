/// The icons that objects draw.
#pragma once

#include <optional>
#include <string>

#include "workbench/picture/Image.hpp"

namespace workbench {

/// The picture of an XPM text of the bare kind: `WIDTH HEIGHT COLOURS 1`, a line
/// `K c #RRGGBB` for each colour, and the rows of keys. Empty for all else.
std::optional<Image> readXpm(std::string const& text);

}  // namespace workbench
