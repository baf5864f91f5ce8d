/// What a fuzz target says before it ends, when what must hold does not.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

/// Names what does not hold, and for which text.
inline void require(bool holds, char const* what, std::string const& text) {
    if (holds)
        return;
    std::fprintf(stderr, "%s: '%s'\n", what, text.c_str());
    std::abort();
}
