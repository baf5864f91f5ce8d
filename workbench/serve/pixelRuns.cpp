#include "workbench/serve/pixelRuns.hpp"

#include <algorithm>
#include <cstdint>

namespace workbench {

namespace {

using Pixel = std::vector<Rgba8>::const_iterator;

constexpr std::ptrdiff_t LeastRun = 3;  ///< pixels; a run of two is no shorter than the two
constexpr std::uint32_t AsTheyAre = 0x80000000;

void put(std::string& bytes, std::uint32_t number) {
    for (int shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>(number >> shift & 0xFF);
}

void put(std::string& bytes, Pixel first, Pixel end) {
    bytes.append(reinterpret_cast<char const*>(&*first),
                 static_cast<std::size_t>(end - first) * sizeof(Rgba8));
}

void putAsTheyAre(std::string& bytes, Pixel first, Pixel end) {
    if (first == end)
        return;
    put(bytes, static_cast<std::uint32_t>(end - first) + AsTheyAre);
    put(bytes, first, end);
}

}  // namespace

std::string pixelRuns(Image const& image) {
    std::string bytes;
    Pixel const end = image.pixels().end();
    Pixel waiting = image.pixels().begin();  // what is not yet put
    for (Pixel first = waiting, next; first != end; first = next) {
        next =
            std::find_if(first, end, [color = *first](Rgba8 const& each) { return each != color; });
        if (next - first < LeastRun)
            continue;
        putAsTheyAre(bytes, waiting, first);
        put(bytes, static_cast<std::uint32_t>(next - first));
        put(bytes, first, first + 1);
        waiting = next;
    }
    putAsTheyAre(bytes, waiting, end);
    return bytes;
}

}  // namespace workbench
