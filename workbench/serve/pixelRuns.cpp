#include "workbench/serve/pixelRuns.hpp"

#include <algorithm>
#include <cstdint>

namespace workbench {

std::optional<std::string> pixelRuns(Image const& image) {
    std::vector<Rgba8> const& pixels = image.pixels();
    std::string runs;
    for (auto first = pixels.begin(); first != pixels.end();) {
        auto const end = std::find_if(
            first, pixels.end(), [color = *first](Rgba8 const& each) { return each != color; });
        auto const count = static_cast<std::uint32_t>(end - first);
        for (int shift = 0; shift < 32; shift += 8)
            runs += static_cast<char>(count >> shift & 0xFF);
        runs.append(first->begin(), first->end());
        if (runs.size() >= pixels.size() * sizeof(Rgba8))
            return std::nullopt;
        first = end;
    }
    return runs;
}

}  // namespace workbench
