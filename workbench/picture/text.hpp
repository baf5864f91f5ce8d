/// Words in pictures.
#pragma once

#include <string_view>

#include "workbench/picture/Image.hpp"

namespace workbench {

/// Size in pixels of a text in a font whose dots are `scale` pixels wide and
/// high. Lines end with "\n". What is not printable ASCII is drawn as "?".
int textWidth(std::string_view text, int scale);
int textHeight(int scale);

/// Draws a text with its upper left corner at the place; what lies outside the
/// picture is left out.
void drawText(Image& image, int x, int y, std::string_view text, Rgba8 color, int scale);

}  // namespace workbench
