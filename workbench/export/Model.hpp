/// What stands between a map and the files of other programs.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "host/colormap/Colormap.hpp"
#include "workbench/common/Interval.hpp"

namespace workbench {

/// The values from `from` to before `to`, in one colour or along a straight line
/// from one colour to another.
struct Piece {
    double from;
    double to;
    Orlo::rgba_float_t start;  ///< at `from`
    Orlo::rgba_float_t end;    ///< where `to` is approached
    /// Whether the piece before ends in this one's start. Otherwise there is a hard
    /// edge: `from` is the first double of the new colour.
    bool joined = false;

    bool isFlat() const noexcept { return start == end; }
};

/// Where a file comes from.
struct Origin {
    std::string key = {};
    std::string description = {};  ///< as the catalogue has it; may be empty
    std::string label = {};        ///< the map's text about itself; may be empty
    std::vector<std::pair<std::string, std::string>> parameters = {};  ///< names with present texts
    std::string maker = {};    ///< the program and its version
    std::string command = {};  ///< makes the file again
};

/// A map as a row of pieces. Each begins where the one before ends; the last one
/// holds its `to` as well.
struct Model {
    Interval range = {};  ///< the values at the map's lower and upper end
    std::vector<Piece> pieces = {};
    Orlo::rgba_float_t below = {};    ///< a millionth of the range below it
    Orlo::rgba_float_t above = {};    ///< as far above it
    Orlo::rgba_float_t missing = {};  ///< of what is no number
    bool changesBelow = false;        ///< whether values further below have other colours
    bool changesAbove = false;
    bool goesBeyond = false;  ///< whether components of the map leave 0 to 1
    bool alphaTells = false;  ///< whether alpha varies in the range, or is neither 0 nor 1
    bool isOpaque = true;     ///< whether the map's alpha is 1 throughout
    bool hasAlpha = false;    ///< whether alpha is kept; otherwise all colours are opaque
    double error = 0.0;       ///< components as shown differ by no more; 0 for hard classes
    Origin origin = {};

    /// Whether all pieces have one colour each.
    bool isClasses() const noexcept;
    /// Whether there is an edge between two pieces.
    bool hasEdges() const noexcept;
    /// The last double of one of the pieces.
    double lastOf(Piece const& piece) const noexcept;
    /// Where a value stands, from 0 to 1.
    double part(double value) const noexcept;
};

/// The colour at a part of the way from one to another.
Orlo::rgba_float_t between(Orlo::rgba_float_t const& a, Orlo::rgba_float_t const& b, double part);

/// The colour that the pieces have for any value.
Orlo::rgba_float_t colorAt(Model const& model, double value);

/// Takes pieces out that are narrower than a part of the range; those before them grow.
/// Gives how many are gone.
std::size_t dropSlivers(Model& model, double minPart);

/// A value with its colour; lines run between neighbours.
struct Stop {
    double value;
    Orlo::rgba_float_t color;
};

/// The pieces as stops in ascending order. An edge is two stops whose values are
/// neighbours among the doubles.
std::vector<Stop> stopsOf(Model const& model);

/// The same for forms in which the colour of a class holds up to the next stop: one
/// for each class.
std::vector<Stop> formStops(Model const& model);

}  // namespace workbench
