/// Texts that several forms have in common.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/export/Model.hpp"

namespace workbench {

/// The components of a colour as whole numbers from 0 to 255.
std::array<int, 4> bytesOf(Orlo::rgba_float_t const& color) noexcept;

/// "#0080ff"
std::string hexOf(Orlo::rgba_float_t const& color);

/// The shortest text that reads back to the same number, "nan" for any NaN.
std::string shortestText(double value);

/// The numbers of a colour between separators: so many components, as whole
/// numbers from 0 to 255, or as the very doubles that the floats are: programs that
/// read 0.9 as a double would round half of a 255th the other way.
std::string byteText(Orlo::rgba_float_t const& color, std::size_t count, char const* separator);
std::string floatText(Orlo::rgba_float_t const& color, std::size_t count, char const* separator);

/// Where a map comes from, how right its colours are and how the file is made
/// again: lines for a comment, without line ends and other control characters.
/// `levels` is the number of levels that components are rounded to, less one; 0
/// for none.
std::vector<std::string> aboutLines(Model const& model, int levels);

/// The same as a comment, each line behind a mark such as "# ".
std::string comment(Model const& model, int levels, std::string_view mark);

/// The text with `&`, `<`, `>` and quotes written as XML has them.
std::string escapeXml(std::string_view text);

/// What a map is called where names have letters, digits and `_` alone.
std::string plainName(Model const& model);

}  // namespace workbench
