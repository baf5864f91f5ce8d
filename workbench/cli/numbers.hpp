/// Numbers on the command line and in results, without locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "workbench/common/Interval.hpp"
#include "workbench/session/lookupLine.hpp"

namespace workbench {

/// The number that the whole text means: decimal (`0.5`, `-2e-3`), hexadecimal
/// (`0x1.8p-1`), `nan`, `inf`, `-inf`. Empty if it means none or one beyond the
/// range of a double.
std::optional<double> readNumber(std::string_view text);

/// A picture's width and height in pixels.
struct Size {
    int width;
    int height;
};

/// Reads "512x64". Throws `CallError` for other texts and for sizes outside 1
/// to 16384.
Size readSize(std::string const& text);

/// Reads two finite numbers with a comma between them. Empty if the text means
/// something else.
std::optional<std::pair<double, double>> readPair(std::string_view text);

/// Reads "0,1000". Throws `CallError` for other texts, and for numbers that are not
/// finite or not in ascending order.
Interval readRange(std::string const& text);

}  // namespace workbench
