/// Foreign texts in messages.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace workbench {

/// The text fit for one line of a message: control characters, which terminals
/// obey, are written as `\xNN`.
std::string printable(std::string_view text);

/// The text between single quotes, fit for one line of a message: control
/// characters are written as `\xNN`, and what exceeds `maxBytes` bytes is left out
/// for "...".
std::string inQuotes(std::string_view text, std::size_t maxBytes = 80);

}  // namespace workbench
