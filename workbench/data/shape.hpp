/// The windows that a grid is worked on in.
#pragma once

#include <algorithm>
#include <vector>

#include "workbench/data/Cells.hpp"

namespace workbench {

/// Cells of a window: a few megabytes, and some milliseconds of work.
constexpr int CellsAtOnce = 1 << 19;

/// All windows of that size, row by row; the last ones may be smaller.
inline std::vector<Window> windowsOf(int width, int height, int windowWidth, int windowHeight) {
    std::vector<Window> all;
    for (int y = 0; y < height; y += std::min(windowHeight, height - y))
        for (int x = 0; x < width; x += std::min(windowWidth, width - x))
            all.push_back(
                {x, y, std::min(windowWidth, width - x), std::min(windowHeight, height - y)});
    return all;
}

/// Windows of whole rows.
inline std::vector<Window> rowWindows(int width, int height) {
    return windowsOf(width, height, width, std::max(CellsAtOnce / width, 1));
}

/// As many times a length as fit into another, and at least once.
inline int timesInto(int length, int room) {
    return std::max(room / length, 1) * length;
}

/// Windows for a file that holds blocks of that size, so that each block is read
/// as a whole; blocks that are too large are read in rows.
inline std::vector<Window> blockWindows(int width, int height, int blockWidth, int blockHeight) {
    int const across = std::min({blockWidth, width, CellsAtOnce});
    int const down = std::min(blockHeight, std::max(CellsAtOnce / across, 1));
    if (across == width)
        return windowsOf(width, height, width, timesInto(down, std::max(CellsAtOnce / width, 1)));
    return windowsOf(width, height, timesInto(across, CellsAtOnce / down), down);
}

}  // namespace workbench
