#include "workbench/picture/text.hpp"

#include <stb/stb_easy_font.h>

#include <algorithm>
#include <string>
#include <vector>

namespace workbench {

namespace {

/// Height of a line in dots of the font.
constexpr int LineHeight = 12;

/// The corner of one filled rectangle as the font gives it, in dots.
struct Vertex {
    float x, y, z;
    unsigned char color[4];
};
constexpr std::size_t Corners = 4;

/// The font knows printable ASCII alone, and wants to write.
std::string drawable(std::string_view text) {
    std::string result(text);
    for (char& c : result)
        if (c != '\n' && (c < ' ' || c > '~'))
            c = '?';
    return result;
}

/// The rectangles of a text, four corners each.
std::vector<Vertex> rectangles(std::string_view text) {
    constexpr std::size_t maxOfOneLetter = 20;  // rectangles; the font has at most 16
    std::string letters = drawable(text);
    std::vector<Vertex> corners((letters.size() + 1) * maxOfOneLetter * Corners);
    int const count = stb_easy_font_print(0, 0, letters.data(), nullptr, corners.data(),
                                          static_cast<int>(corners.size() * sizeof(Vertex)));
    corners.resize(static_cast<std::size_t>(count) * Corners);
    return corners;
}

}  // namespace

int textWidth(std::string_view text, int scale) {
    return scale * stb_easy_font_width(drawable(text).data());
}

int textHeight(int scale) {
    return scale * LineHeight;
}

void drawText(Image& image, int x, int y, std::string_view text, Rgba8 color, int scale) {
    std::vector<Vertex> const corners = rectangles(text);
    for (std::size_t i = 0; i + Corners <= corners.size(); i += Corners) {
        Vertex const& first = corners[i];
        Vertex const& opposite = corners[i + 2];
        image.fill(x + scale * static_cast<int>(first.x), y + scale * static_cast<int>(first.y),
                   scale * static_cast<int>(opposite.x - first.x),
                   scale * static_cast<int>(opposite.y - first.y), color);
    }
}

}  // namespace workbench
