/// Messages of the program.
#pragma once

#include <cstdio>
#include <string>

#include "workbench/common/inQuotes.hpp"

namespace workbench {

/// Says something on standard error, on one line whatever the text holds.
inline void report(std::string const& text) {
    std::fprintf(stderr, "telmbench: %s\n", printable(text).c_str());
}

}  // namespace workbench
