/// Why most points need no look, and yet no bit is lost.
///
/// The points stand in blocks, sub-cubes of the grid, each with the bounding box
/// of its points in Lab and the greatest of their `nearest`. The distance of a new
/// colour to the box, computed in the order in which the distance of a point is,
/// never exceeds the computed distance of a point in the box: subtraction, square
/// and sum are monotone under IEEE rounding, and nothing is contracted. So a block
/// whose greatest `nearest` is not above that bound has no point that the new
/// colour could come nearer to, and the search for the farthest point of all is
/// one over the blocks.
#include "prism/tinctures/science/FarthestPoints.hpp"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

namespace prism {

namespace {

/// Two doubles at once, as every 64-bit x86 processor has them. Four at once, on
/// those that can, gained a seventh and were not worth a second code path.
using Pair [[gnu::vector_size(16)]] = double;
constexpr std::size_t PairSize = 2;

Pair load(double const* from) {
    Pair pair;
    std::memcpy(&pair, from, sizeof pair);
    return pair;
}

void store(double* to, Pair pair) {
    std::memcpy(to, &pair, sizeof pair);
}

constexpr std::size_t roundedUp(std::size_t count) {
    return (count + PairSize - 1) / PairSize * PairSize;
}

/// The squared distance along the three axes; the order of the sums decides ties.
template <class Number>
Number squaredDistance(Number L, Number a, Number b) {
    return (a * a + L * L) + b * b;
}

/// How far a coordinate lies outside of a box, or 0.
Pair outside(double taken, double const* least, double const* greatest) {
    Pair const below = load(least) - taken;
    Pair const above = taken - load(greatest);
    Pair const outer = below > above ? below : above;
    Pair const none = {};
    return outer > none ? outer : none;
}

/// Points or corners as one array for each coordinate, with room for whole pairs.
struct Coordinates {
    std::vector<double> L, a, b;

    explicit Coordinates(std::size_t count)
        : L(roundedUp(count)), a(roundedUp(count)), b(roundedUp(count)) {}

    void set(std::size_t i, double newL, double newA, double newB) {
        L[i] = newL;
        a[i] = newA;
        b[i] = newB;
    }
};

std::size_t cubed(int edge) {
    auto const size = static_cast<std::size_t>(edge);
    return size * size * size;
}

}  // namespace

class FarthestPoints::Search {
public:
    Search(Orlo::Enum const& illuminant, RgbGrid const& grid);

    /// Takes a colour, and finds the point that is the farthest from all taken
    /// ones. False if every point coincides with one.
    bool take(LabPoint const& taken);
    /// The index of the point found; before and without any, the first.
    std::size_t best() const noexcept { return best_; }
    LabPoint bestPoint() const {
        return {points_.L[bestPlace_], points_.a[bestPlace_], points_.b[bestPlace_], 0.0};
    }

private:
    /// Where a block's points stand in the arrays, and in the grid.
    struct Block {
        std::size_t first, end;  ///< places, whole pairs
        int red, green, blue;    ///< steps of its first point
        int greens, blues;       ///< its extent
    };

    /// Steps a channel of a block: measured best of 4 to 7 at 1000 colours.
    static constexpr int BlockEdge = 5;

    static std::size_t blockCount(int steps) { return cubed((steps + BlockEdge - 1) / BlockEdge); }

    void addBlock(LabConversion const& convert, std::vector<double> const& linear, int red,
                  int green, int blue);
    void bindBox(std::size_t block, LabPoint const& point);
    void measureBoxes(LabPoint const& taken);
    void approach(std::size_t block, LabPoint const& taken);
    void findBest(double farthest);
    std::size_t indexOf(Block const& block, std::size_t place) const;

    int steps_;
    Coordinates points_;
    std::vector<double> nearest_;  ///< 0 where no point stands
    std::vector<Block> blocks_;
    Coordinates least_, greatest_;  ///< corners of the blocks' boxes
    std::vector<double> bound_;     ///< distance of the colour just taken to each box
    std::vector<double> farthest_;  ///< greatest `nearest` of each block
    std::size_t best_ = 0, bestPlace_ = 0;
};

FarthestPoints::Search::Search(Orlo::Enum const& illuminant, RgbGrid const& grid)
    : steps_(grid.steps()),
      points_(cubed(steps_) + blockCount(steps_)),
      nearest_(points_.L.size()),
      least_(blockCount(steps_)),
      greatest_(blockCount(steps_)),
      bound_(least_.L.size()),
      farthest_(blockCount(steps_), NothingNear) {
    std::vector<double> linear;  // the companding of a channel takes few values
    for (int step = 0; step < steps_; ++step)
        linear.push_back(linearPercent(grid.channel(step)));
    LabConversion const convert(illuminant);
    blocks_.reserve(farthest_.size());
    for (int red = 0; red < steps_; red += BlockEdge)
        for (int green = 0; green < steps_; green += BlockEdge)
            for (int blue = 0; blue < steps_; blue += BlockEdge)
                addBlock(convert, linear, red, green, blue);
}

void FarthestPoints::Search::addBlock(LabConversion const& convert,
                                      std::vector<double> const& linear, int red, int green,
                                      int blue) {
    int const redEnd = std::min(red + BlockEdge, steps_);
    int const greenEnd = std::min(green + BlockEdge, steps_);
    int const blueEnd = std::min(blue + BlockEdge, steps_);
    std::size_t const block = blocks_.size();
    std::size_t const first = blocks_.empty() ? 0 : blocks_.back().end;
    std::size_t place = first;
    constexpr double far = std::numeric_limits<double>::infinity();
    least_.set(block, far, far, far);
    greatest_.set(block, -far, -far, -far);
    for (int i = red; i < redEnd; ++i)
        for (int j = green; j < greenEnd; ++j)
            for (int k = blue; k < blueEnd; ++k) {
                LabPoint const point = convert(linear[static_cast<std::size_t>(i)],
                                               linear[static_cast<std::size_t>(j)],
                                               linear[static_cast<std::size_t>(k)]);
                points_.set(place, point.L, point.a, point.b);
                nearest_[place++] = point.nearest;
                bindBox(block, point);
            }
    blocks_.push_back(
        {first, roundedUp(place), red, green, blue, greenEnd - green, blueEnd - blue});
}

/// Widens the block's box by a point. NaN widens nothing: it is near to nothing.
void FarthestPoints::Search::bindBox(std::size_t block, LabPoint const& point) {
    auto const widen = [block](std::vector<double>& low, std::vector<double>& high, double value) {
        low[block] = value < low[block] ? value : low[block];
        high[block] = value > high[block] ? value : high[block];
    };
    widen(least_.L, greatest_.L, point.L);
    widen(least_.a, greatest_.a, point.a);
    widen(least_.b, greatest_.b, point.b);
}

void FarthestPoints::Search::measureBoxes(LabPoint const& taken) {
    // Local addresses: a store could change those in the members.
    double* const bound = bound_.data();
    double const *const lowL = least_.L.data(), *const highL = greatest_.L.data();
    double const *const lowA = least_.a.data(), *const highA = greatest_.a.data();
    double const *const lowB = least_.b.data(), *const highB = greatest_.b.data();
    for (std::size_t i = 0, end = bound_.size(); i < end; i += PairSize)
        store(bound + i, squaredDistance(outside(taken.L, lowL + i, highL + i),
                                         outside(taken.a, lowA + i, highA + i),
                                         outside(taken.b, lowB + i, highB + i)));
}

/// Lets the points of a block see the colour just taken.
void FarthestPoints::Search::approach(std::size_t block, LabPoint const& taken) {
    Pair farthest = {};
    double* const nearest = nearest_.data();
    double const *const L = points_.L.data(), *const a = points_.a.data(),
                        *const b = points_.b.data();
    for (std::size_t i = blocks_[block].first, end = blocks_[block].end; i < end; i += PairSize) {
        Pair const distance =
            squaredDistance(taken.L - load(L + i), taken.a - load(a + i), taken.b - load(b + i));
        Pair const before = load(nearest + i);
        Pair const now = before > distance ? distance : before;
        store(nearest + i, now);
        farthest = now > farthest ? now : farthest;
    }
    farthest_[block] = std::max(farthest[0], farthest[1]);
}

bool FarthestPoints::Search::take(LabPoint const& taken) {
    measureBoxes(taken);
    double farthest = 0.0;
    for (std::size_t block = 0; block < blocks_.size(); ++block) {
        if (!(bound_[block] >= farthest_[block]))
            approach(block, taken);
        farthest = std::max(farthest, farthest_[block]);
    }
    if (farthest > 0.0)
        findBest(farthest);
    return farthest > 0.0;
}

/// Of all points at the farthest distance, the one of the lowest index: within a
/// block that is the first place.
void FarthestPoints::Search::findBest(double farthest) {
    best_ = std::numeric_limits<std::size_t>::max();
    for (std::size_t block = 0; block < blocks_.size(); ++block) {
        if (farthest_[block] != farthest)
            continue;
        std::size_t place = blocks_[block].first;
        while (nearest_[place] != farthest)
            ++place;
        std::size_t const index = indexOf(blocks_[block], place);
        if (index < best_) {
            best_ = index;
            bestPlace_ = place;
        }
    }
}

std::size_t FarthestPoints::Search::indexOf(Block const& block, std::size_t place) const {
    auto const within = static_cast<int>(place - block.first);
    int const red = block.red + within / (block.greens * block.blues);
    int const green = block.green + within / block.blues % block.greens;
    int const blue = block.blue + within % block.blues;
    return static_cast<std::size_t>((red * steps_ + green) * steps_ + blue);
}

RgbTriple RgbGrid::operator[](std::size_t index) const noexcept {
    auto const edge = static_cast<std::size_t>(steps_);
    auto const at = [this](std::size_t step) { return channel(static_cast<int>(step)); };
    return {at(index / (edge * edge)), at(index / edge % edge), at(index % edge)};
}

FarthestPoints::FarthestPoints(Orlo::Enum const& illuminant, RgbGrid const& grid)
    : search_(grid.steps() > 0 ? std::make_unique<Search>(illuminant, grid) : nullptr) {}

FarthestPoints::FarthestPoints(FarthestPoints const& other)
    : search_(other.search_ ? std::make_unique<Search>(*other.search_) : nullptr) {}

FarthestPoints::~FarthestPoints() = default;

std::vector<std::size_t> FarthestPoints::pick(std::vector<LabPoint> const& backgrounds,
                                              std::size_t count) {
    std::vector<std::size_t> picks;
    if (!search_ || count == 0)
        return picks;
    picks.reserve(count);
    bool more = true;
    for (LabPoint const& background : backgrounds)
        more = search_->take(background);
    picks.push_back(search_->best());
    while (more && picks.size() < count) {
        more = search_->take(search_->bestPoint());
        picks.push_back(search_->best());
    }
    picks.resize(count, search_->best());
    return picks;
}

}  // namespace prism
