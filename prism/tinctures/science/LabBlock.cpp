#include "prism/tinctures/science/LabBlock.hpp"

#include <cmath>

namespace prism {

namespace {

/// Distances of rough points, and of floats, are right to that part of them and `Blur`.
constexpr double FloatError = 1e-6;

/// The greatest squared distance that roughly measured points may have.
double atMost(double squared) {
    double const distance = std::sqrt(squared) * (1.0 + FloatError) + RoughLab::Blur;
    return std::min(distance * distance, NothingNear);
}

/// The least one that points which may be as far as some of that distance show.
float mayReach(double squared) {
    double const distance = std::sqrt(squared) * (1.0 - 2.0 * FloatError) - 2.0 * RoughLab::Blur;
    return distance > 0.0 ? static_cast<float>(distance * distance) : 0.0F;
}

bool anyReaches(float const* numbers, float least) {
    auto const reaches = load<Quad>(numbers) >= least;
    return (reaches[0] | reaches[1] | reaches[2] | reaches[3]) != 0;
}

}  // namespace

template <class Lanes>
Points<Lanes>::Points(std::size_t count)
    : size_((count + LaneCount<Lanes> - 1) / LaneCount<Lanes> * LaneCount<Lanes>),
      numbers_(4 * size_) {
    std::fill_n(nearest(), count, farthest_);
}

template <class Lanes>
void Points<Lanes>::approach(LabPoint const& taken) {
    auto const L = static_cast<Number>(taken.L), a = static_cast<Number>(taken.a),
               b = static_cast<Number>(taken.b);
    // Local addresses: a store could change those in the members.
    Number const *const ownL = this->L(), *const ownA = this->a(), *const ownB = this->b();
    Number* const nearest = this->nearest();
    Lanes farthest{};
    for (std::size_t i = 0, end = size_; i < end; i += LaneCount<Lanes>) {
        Lanes const distance = squaredDistance(L - load<Lanes>(ownL + i), a - load<Lanes>(ownA + i),
                                               b - load<Lanes>(ownB + i));
        Lanes const now = lesser(distance, load<Lanes>(nearest + i));
        store(nearest + i, now);
        farthest = greater(now, farthest);
    }
    farthest_ = greatestOf(farthest);
}

LabBlock::LabBlock(LabGrid const& grid, Cube const& cube, std::vector<LabPoint> taken)
    : grid_(grid), cube_(cube) {
    if (grid_.isDense())
        convertExactly(taken);
    else
        convertRoughly(std::move(taken));
}

void LabBlock::convertExactly(std::vector<LabPoint> const& taken) {
    exact_ = Points<Pair>(cube_.places());
    std::size_t place = 0;
    cube_.forEach([&](Steps const& at) {
        LabPoint const point = grid_.point(at);
        exact_.L()[place] = point.L;
        exact_.a()[place] = point.a;
        exact_.b()[place++] = point.b;
    });
    for (LabPoint const& color : taken)
        exact_.approach(color);
}

void LabBlock::convertRoughly(std::vector<LabPoint> taken) {
    rough_ = Points<Quad>(cube_.places());
    float *const L = rough_.L(), *const a = rough_.a(), *const b = rough_.b();
    std::size_t place = 0;
    cube_.forEach([&](Steps const& at) {  // first the channels, then the points in their place
        L[place] = static_cast<float>(grid_.linear(at[0]));
        a[place] = static_cast<float>(grid_.linear(at[1]));
        b[place++] = static_cast<float>(grid_.linear(at[2]));
    });
    for (std::size_t i = 0; i < rough_.size(); i += LaneCount<Quad>) {
        QuadLab const points =
            grid_.rough()({load<Quad>(L + i), load<Quad>(a + i), load<Quad>(b + i)});
        store(L + i, points.L);
        store(a + i, points.a);
        store(b + i, points.b);
    }
    for (LabPoint const& color : taken)
        rough_.approach(color);
    taken_ = std::move(taken);
}

void LabBlock::approach(LabPoint const& taken) {
    isSought_ = false;
    if (grid_.isDense())
        return exact_.approach(taken);
    taken_.push_back(taken);
    rough_.approach(taken);
}

Claim LabBlock::claim() const {
    if (isSought_)
        return {best_.point.nearest, best_.index};
    return {grid_.isDense() ? exact_.farthest() : atMost(rough_.farthest()),
            grid_.index(cube_.first)};
}

Candidate const* LabBlock::look() {
    if (isSought_)
        return &best_;
    best_ = {};
    if (grid_.isDense())
        seekExactly();
    else
        seekRoughly();
    isSought_ = true;
    return nullptr;
}

void LabBlock::seekExactly() {
    double const* const nearest = exact_.nearest();
    auto const place = static_cast<std::size_t>(
        std::find(nearest, nearest + exact_.size(), exact_.farthest()) - nearest);
    best_ = {{exact_.L()[place], exact_.a()[place], exact_.b()[place], nearest[place]},
             grid_.index(cube_.at(place))};
}

void LabBlock::seekRoughly() {
    float const* const nearest = rough_.nearest();
    float const least = mayReach(rough_.farthest());
    for (std::size_t i = 0; i < rough_.size(); i += LaneCount<Quad>)
        if (anyReaches(nearest + i, least))
            for (std::size_t place = i; place < i + LaneCount<Quad>; ++place)
                if (nearest[place] >= least && place < cube_.places())
                    consider(place);
}

/// Measures a point exactly. Places come in the order of their indices, so that
/// of equals the first one stays.
void LabBlock::consider(std::size_t place) {
    Steps const at = cube_.at(place);
    LabPoint point = grid_.point(at);
    for (LabPoint const& taken : taken_)
        point.nearest =
            lesser(squaredDistance(taken.L - point.L, taken.a - point.a, taken.b - point.b),
                   point.nearest);
    if (point.nearest > best_.point.nearest)
        best_ = {point, grid_.index(at)};
}

}  // namespace prism
