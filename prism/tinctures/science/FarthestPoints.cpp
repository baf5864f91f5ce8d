/// Why most points need no look, and yet no bit is lost.
///
/// The grid is a tree of cubes. Each cube has a box in Lab that holds its exactly
/// converted points (RoughLab says why), and a claim: a bound that none of its
/// points is farther from all taken colours than, and the lowest index that one
/// as far may have. The pick of the plain form, the farthest point and of equal
/// ones the first, is the greatest claim of all as soon as that is the claim of a
/// point. Until then the cube that makes it is looked at more closely: it is
/// halved along each channel, or, if it is small, its points are measured.
///
/// The distance of a taken colour to the nearest and to the farthest place of a
/// box, computed in the order in which the distance of a point is, is never
/// greater and never less than that of a point in it: subtraction, square and sum
/// are monotone under IEEE rounding, and nothing is contracted. So a colour that is no
/// nearer to a box than its bound changes nothing in it; and that any other one
/// lowers the bound to its distance from the farthest place.
///
/// NaN compares false, so that it lowers nothing, as in the plain form.
#include "prism/tinctures/science/FarthestPoints.hpp"

#include <algorithm>
#include <utility>
#include <vector>

#include "prism/tinctures/science/LabBlock.hpp"

namespace prism {

namespace {

/// A cube of the grid in up to eight parts: it is halved along each channel.
class Branch {
public:
    /// The cube has seen the given colours, and maybe others, which are far; they
    /// give the bound.
    Branch(LabGrid const& grid, Cube const& cube, std::vector<LabPoint> taken, double bound);

    /// Lets the points see a colour just taken.
    void approach(LabPoint const& taken);

    /// The greatest claim of its parts.
    Claim claim() const;

    /// The point that makes the claim; null if no single point does yet, and then
    /// the part that makes it is looked at more closely.
    Candidate const* look();

private:
    static constexpr std::size_t Parts = 8;
    using Numbers = std::array<double, Parts>;
    using Corners = std::array<Numbers, 3>;

    Cube part(std::size_t i) const;
    void addParts(double bound);
    void addBoxes();
    std::size_t best() const;
    Pair leastDistance(LabPoint const& taken, std::size_t i) const;
    Pair greatestDistance(LabPoint const& taken, std::size_t i) const;
    void lowerBounds(LabPoint const& taken, std::size_t i);
    void open(std::size_t i);
    void renewClaim(std::size_t i);

    LabGrid const& grid_;
    Cube cube_;
    std::vector<LabPoint> taken_;  ///< while parts are unopened: what may be near to them
    std::size_t unopened_ = 0;
    Corners least_, greatest_;  ///< L, a and b of the boxes
    Numbers bound_{};           ///< 0 where no part is
    std::array<std::uint32_t, Parts> index_{};
    std::array<std::unique_ptr<Branch>, Parts> branches_;
    std::array<std::unique_ptr<LabBlock>, Parts> blocks_;
};

/// Steps a channel of the largest block; measured best of 4 to 8.
constexpr int BlockEdge = 5;

bool isSmall(Cube const& cube) {
    return cube.size(0) <= BlockEdge && cube.size(1) <= BlockEdge && cube.size(2) <= BlockEdge;
}

/// The first lane of the pair in which a lane is.
constexpr std::size_t firstLane(std::size_t lane) {
    return lane / LaneCount<Pair> * LaneCount<Pair>;
}

/// How far a coordinate lies outside of a box, or 0.
Pair outside(double taken, double const* least, double const* greatest) {
    return greater(greater(load<Pair>(least) - taken, taken - load<Pair>(greatest)), Pair{});
}

/// How far a coordinate is from the farther side of a box.
Pair across(double taken, double const* least, double const* greatest) {
    return greater(taken - load<Pair>(least), load<Pair>(greatest) - taken);
}

Branch::Branch(LabGrid const& grid, Cube const& cube, std::vector<LabPoint> taken, double bound)
    : grid_(grid), cube_(cube), taken_(std::move(taken)) {
    addParts(bound);
    addBoxes();
    for (LabPoint const& color : taken_)
        for (std::size_t i = 0; i < Parts; i += LaneCount<Pair>)
            lowerBounds(color, i);
}

/// One half of the cube along each channel; a channel of few steps stays whole,
/// and its second half is empty.
Cube Branch::part(std::size_t i) const {
    Cube part = cube_;
    for (std::size_t channel = 0; channel < 3; ++channel) {
        int const size = cube_.size(channel);
        int const middle = cube_.first[channel] + (size > BlockEdge ? (size + 1) / 2 : size);
        bool const second = (i >> (2 - channel) & 1) != 0;
        (second ? part.first : part.end)[channel] = middle;
    }
    return part;
}

void Branch::addParts(double bound) {
    for (std::size_t i = 0; i < Parts; ++i)
        if (Cube const cube = part(i); !cube.isEmpty()) {
            bound_[i] = bound;
            index_[i] = grid_.index(cube.first);
            ++unopened_;
        }
}

void Branch::addBoxes() {
    constexpr std::size_t Lanes = LaneCount<Quad>;
    for (std::size_t i = 0; i < Parts; i += Lanes) {
        QuadRgb least{}, greatest{};
        for (std::size_t lane = 0; lane < Lanes; ++lane) {
            if (bound_[i + lane] == 0.0)
                continue;
            Cube const cube = part(i + lane);
            auto const linear = [this](int step) { return static_cast<float>(grid_.linear(step)); };
            least.red[lane] = linear(cube.first[0]);
            least.green[lane] = linear(cube.first[1]);
            least.blue[lane] = linear(cube.first[2]);
            greatest.red[lane] = linear(cube.end[0] - 1);
            greatest.green[lane] = linear(cube.end[1] - 1);
            greatest.blue[lane] = linear(cube.end[2] - 1);
        }
        QuadLab const low = grid_.rough().leastCorner(least, greatest);
        QuadLab const high = grid_.rough().greatestCorner(least, greatest);
        for (std::size_t lane = 0; lane < Lanes; ++lane) {
            least_[0][i + lane] = low.L[lane];
            least_[1][i + lane] = low.a[lane];
            least_[2][i + lane] = low.b[lane];
            greatest_[0][i + lane] = high.L[lane];
            greatest_[1][i + lane] = high.a[lane];
            greatest_[2][i + lane] = high.b[lane];
        }
    }
}

/// The squared distances of a colour from the nearest places of two boxes.
Pair Branch::leastDistance(LabPoint const& taken, std::size_t i) const {
    return squaredDistance(outside(taken.L, &least_[0][i], &greatest_[0][i]),
                           outside(taken.a, &least_[1][i], &greatest_[1][i]),
                           outside(taken.b, &least_[2][i], &greatest_[2][i]));
}

/// The same from the farthest places.
Pair Branch::greatestDistance(LabPoint const& taken, std::size_t i) const {
    return squaredDistance(across(taken.L, &least_[0][i], &greatest_[0][i]),
                           across(taken.a, &least_[1][i], &greatest_[1][i]),
                           across(taken.b, &least_[2][i], &greatest_[2][i]));
}

void Branch::lowerBounds(LabPoint const& taken, std::size_t i) {
    store(&bound_[i], lesser(greatestDistance(taken, i), load<Pair>(&bound_[i])));
}

void Branch::approach(LabPoint const& taken) {
    Numbers least;
    for (std::size_t i = 0; i < Parts; i += LaneCount<Pair>)
        store(&least[i], leastDistance(taken, i));
    if (unopened_ > 0)
        taken_.push_back(taken);
    for (std::size_t i = 0; i < Parts; ++i) {
        if (least[i] >= bound_[i])
            continue;
        if (branches_[i])
            branches_[i]->approach(taken);
        else if (blocks_[i])
            blocks_[i]->approach(taken);
        else
            lowerBounds(taken, firstLane(i));
        renewClaim(i);
    }
}

void Branch::renewClaim(std::size_t i) {
    Claim claim{bound_[i], index_[i]};
    if (branches_[i])
        claim = branches_[i]->claim();
    else if (blocks_[i])
        claim = blocks_[i]->claim();
    bound_[i] = claim.bound;
    index_[i] = claim.index;
}

/// The part of the greatest claim.
std::size_t Branch::best() const {
    Pair most = load<Pair>(bound_.data());
    for (std::size_t i = LaneCount<Pair>; i < Parts; i += LaneCount<Pair>)
        most = greater(load<Pair>(&bound_[i]), most);
    double const greatest = greatestOf(most);
    std::size_t best = Parts;
    for (std::size_t i = 0; i < Parts; ++i)
        if (bound_[i] == greatest && (best == Parts || index_[i] < index_[best]))
            best = i;
    return best;
}

Claim Branch::claim() const {
    std::size_t const i = best();
    return {bound_[i], index_[i]};
}

Candidate const* Branch::look() {
    std::size_t const i = best();
    Candidate const* found = nullptr;
    if (branches_[i])
        found = branches_[i]->look();
    else if (blocks_[i])
        found = blocks_[i]->look();
    else
        open(i);
    renewClaim(i);
    return found;
}

/// Opens a part, which takes over what may be near to it.
void Branch::open(std::size_t i) {
    std::vector<LabPoint> near;
    near.reserve(taken_.size());
    for (LabPoint const& color : taken_)
        if (leastDistance(color, firstLane(i))[i - firstLane(i)] < bound_[i])
            near.push_back(color);
    Cube const cube = part(i);
    if (isSmall(cube))
        blocks_[i] = std::make_unique<LabBlock>(grid_, cube, std::move(near));
    else
        branches_[i] = std::make_unique<Branch>(grid_, cube, std::move(near), bound_[i]);
    if (--unopened_ == 0)
        taken_ = {};
}

}  // namespace

struct FarthestPoints::Search {
    Search(Orlo::Enum const& illuminant, RgbGrid const& colors, std::size_t picks)
        : grid(illuminant, colors, picks), all(grid, grid.whole(), {}, NothingNear) {}

    LabGrid grid;
    Branch all;
};

FarthestPoints::FarthestPoints(Orlo::Enum const& illuminant, RgbGrid const& grid, std::size_t picks)
    : search_(std::make_unique<Search>(illuminant, grid, picks)) {}

FarthestPoints::~FarthestPoints() = default;

void FarthestPoints::take(LabPoint const& background) {
    search_->all.approach(background);
}

std::optional<std::size_t> FarthestPoints::pick() {
    Branch& all = search_->all;
    while (all.claim().bound > 0.0)
        if (Candidate const* const found = all.look()) {
            Candidate const picked = *found;
            all.approach(picked.point);
            return picked.index;
        }
    return std::nullopt;
}

}  // namespace prism
