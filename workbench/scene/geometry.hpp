/// Places and sizes.
#pragma once

namespace workbench {

/// A place or a direction in space; units are those of the data.
struct Point {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    bool operator==(Point const&) const = default;
};

/// Two numbers that belong together: a size in pixels, or a place as fractions
/// of a picture, to the right and up.
struct Pair {
    double first = 0.0;
    double second = 0.0;

    bool operator==(Pair const&) const = default;
};

}  // namespace workbench
