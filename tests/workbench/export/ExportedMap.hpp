/// A map as `telmbench export --format json` writes it.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "tests/workbench/cli/telmbench.hpp"

namespace tests {

using Color = std::array<double, 4>;

struct ExportedPiece {
    double from;
    double to;
    Color start;
    Color end;
};

/// What a JSON file says, read back.
struct ExportedMap {
    double min, max;
    double error;
    std::vector<ExportedPiece> pieces;
    Color below, above, missing;
    std::string command;

    /// The colour that the pieces give a value within the range.
    Color at(double value) const;
    /// Where a piece does not begin in the colour in which the one before ends.
    std::vector<double> edges() const;
};

/// Exports by the program, which must succeed; `arguments` stand behind the key. Each
/// export is asked for once, as starting programs takes most of the time.
ExportedMap const& exported(std::string const& key, std::vector<std::string> const& arguments = {});

/// The colours that `telmbench lookup` has for values, cut to 0 to 1; NaN is 0.
std::vector<Color> lookedUp(std::string const& key, std::vector<double> const& values,
                            std::vector<std::string> const& settings = {});

/// The names of all entries.
std::vector<std::string> allKeys();

/// The greatest difference of red, green, blue.
double difference(Color const& a, Color const& b);

}  // namespace tests
