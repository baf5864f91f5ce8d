/// A lookup table in VTK's legacy file: evenly spaced colours, around two values
/// that have the range.
#include "workbench/export/notation.hpp"
#include "workbench/export/table.hpp"
#include "workbench/export/writers.hpp"

namespace workbench {

namespace {

constexpr int MaxColors = 4096;

/// A line of a text array, in which `%` begins a code.
std::string encoded(std::string const& line) {
    std::string text;
    for (char const letter : line)
        text += letter == '%' ? "%25" : letter == '"' ? "%22" : std::string(1, letter);
    return text + "\n";
}

std::string write(Model const& model) {
    std::vector<std::string> const about = aboutLines(model, 255);
    std::size_t const count = evenCount(model, MaxColors);
    std::string text = "# vtk DataFile Version 3.0\nColour map " + plainName(model) +
                       "\nASCII\nDATASET STRUCTURED_POINTS\nFIELD FieldData 1\nabout 1 " +
                       std::to_string(about.size()) + " string\n";
    for (std::string const& line : about)
        text += encoded(line);
    text +=
        "DIMENSIONS 2 1 1\nORIGIN 0 0 0\nSPACING 1 1 1\nPOINT_DATA 2\nSCALARS value double 1\n"
        "LOOKUP_TABLE " +
        plainName(model) + "\n" + shortestText(model.range.min) + "\n" +
        shortestText(model.range.max) + "\nLOOKUP_TABLE " + plainName(model) + " " +
        std::to_string(count) + "\n";
    for (Orlo::rgba_float_t const& color : evenColors(model, count))
        text += floatText(color, 4, " ") + "\n";
    return text;
}

}  // namespace

constinit Form const VtkLut{.name = "vtk-lut",
                            .program = "VTK",
                            .ending = ".vtk",
                            .alpha = true,
                            .values = false,
                            .tableSize = MaxColors,
                            .anySize = true,
                            .write = write};

}  // namespace workbench
