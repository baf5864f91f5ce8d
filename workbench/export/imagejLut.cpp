/// A lookup table of ImageJ, as text: 256 colours behind a line of titles. It
/// takes no comment.
#include "workbench/export/notation.hpp"
#include "workbench/export/writers.hpp"

namespace workbench {

namespace {

constexpr int Colors = 256;

/// ImageJ rounds a value to the nearest of 256 places from end to end.
std::string write(Model const& model) {
    std::string text = "Index\tRed\tGreen\tBlue\n";
    for (int i = 0; i < Colors; ++i)
        text += std::to_string(i) + "\t" +
                byteText(colorAt(model, model.range.at(i, Colors - 1)), 3, "\t") + "\n";
    return text;
}

}  // namespace

constinit Form const ImagejLut{.name = "imagej-lut",
                               .program = "ImageJ",
                               .ending = ".lut",
                               .values = false,
                               .origin = false,
                               .tableSize = Colors,
                               .write = write};

}  // namespace workbench
