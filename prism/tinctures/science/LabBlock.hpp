/// A few points of a grid, measured one by one.
#pragma once

#include <vector>

#include "prism/tinctures/science/LabGrid.hpp"

namespace prism {

/// Points as one array for each coordinate, in whole pairs or quads.
template <class Lanes>
class Points {
public:
    using Number = NumberOf<Lanes>;

    /// Points that are near to nothing; where a pair or a quad is not full, some at
    /// which everything is near.
    explicit Points(std::size_t count);

    /// Numbers in lanes, rounded up.
    std::size_t size() const noexcept { return size_; }
    Number* L() noexcept { return numbers_.data(); }
    Number* a() noexcept { return L() + size_; }
    Number* b() noexcept { return a() + size_; }
    Number* nearest() noexcept { return b() + size_; }

    /// Lets the points see a colour just taken: the pass of the plain form.
    void approach(LabPoint const& taken);
    /// The greatest `nearest`.
    Number farthest() const noexcept { return farthest_; }

private:
    std::size_t size_;
    Number farthest_ = static_cast<Number>(NothingNear);
    std::vector<Number> numbers_;
};

/// What a part of the grid may have to offer. The plain form picks the farthest
/// point, and of equal ones the first.
struct Claim {
    double bound;         ///< no point is farther from all taken colours
    std::uint32_t index;  ///< no point as far as that has a lower index
};

/// A point that may be picked.
struct Candidate {
    LabPoint point;
    std::uint32_t index;
};

/// A small cube of a grid: it knows how far its points are from all taken colours.
///
/// Few points are ever picked of most grids. There the points are converted
/// roughly, and only those that may be the farthest exactly, when it is asked for.
/// Of a dense grid all are converted exactly at once.
class LabBlock {
public:
    /// The points of a cube, which have seen the given colours.
    LabBlock(LabGrid const& grid, Cube const& cube, std::vector<LabPoint> taken);

    /// Lets the points see a colour just taken.
    void approach(LabPoint const& taken);

    Claim claim() const;

    /// The point that makes the claim; null if none does yet, and then it is sought.
    Candidate const* look();

private:
    void convertExactly(std::vector<LabPoint> const& taken);
    void convertRoughly(std::vector<LabPoint> taken);
    void seekExactly();
    void seekRoughly();
    void consider(std::size_t place);

    LabGrid const& grid_;
    Cube cube_;
    Points<Pair> exact_{0};        ///< of a dense grid
    Points<Quad> rough_{0};        ///< of any other
    std::vector<LabPoint> taken_;  ///< in that case, what is near to them
    bool isSought_ = false;        ///< whether `best_` is what it says
    Candidate best_{};
};

}  // namespace prism
