/// Where legends and rulers stand in a picture.
#pragma once

#include <string>
#include <vector>

#include "workbench/picture/Image.hpp"
#include "workbench/scene/geometry.hpp"

namespace workbench {

/// A rectangle of pixels, counted from the left and from the top. Parts of it
/// may lie outside the picture.
struct PixelRect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    int right() const { return left + width; }
    int bottom() const { return top + height; }

    bool operator==(PixelRect const&) const = default;
};

/// The rectangle whose lower left corner stands at `position`, all lengths
/// being fractions of the picture's; rounded to whole pixels.
PixelRect pixelRect(Pair const& position, double width, double height, Image const& image);

/// How large texts are in a picture: pixels for each dot of the font.
int textScale(Image const& image);

/// A number as a label: at most six digits that count.
std::string labelText(double value);

/// The value of mark `i` of marks 0 to `parts` between two values.
double markValue(double min, double max, int i, int parts);

/// A text that can be read on any picture: it has a seam around it, black about
/// light colours and white about dark ones.
void drawLabel(Image& image, int x, int y, std::string const& text, Rgba8 color, int scale);

/// Marks with such a seam around all of them together.
void drawMarks(Image& image, std::vector<PixelRect> const& marks, Rgba8 color, int scale);

/// A frame of that thickness around a rectangle.
void drawFrame(Image& image, PixelRect const& inner, int thickness, Rgba8 color);

}  // namespace workbench
