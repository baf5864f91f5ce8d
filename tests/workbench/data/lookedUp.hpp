/// The colours that `telmbench lookup` gives.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "tests/workbench/cli/telmbench.hpp"
#include "workbench/picture/Image.hpp"

namespace tests {

/// The pixels of values, as `telmbench lookup` gives their colours.
inline std::vector<workbench::Rgba8> lookup(std::string const& key, Lines const& values,
                                            Lines const& more = {}) {
    Lines arguments{"lookup", key};
    arguments.insert(arguments.end(), values.begin(), values.end());
    arguments.insert(arguments.end(), more.begin(), more.end());
    std::vector<workbench::Rgba8> pixels;
    for (std::string const& line : results(arguments)) {
        std::istringstream words(line);
        std::string value;
        float red = 0, green = 0, blue = 0;
        words >> value >> red >> green >> blue;
        EXPECT_TRUE(words) << line;
        pixels.push_back(workbench::opaque({red, green, blue, 1}));
    }
    return pixels;
}

}  // namespace tests
