#include "workbench/scene/Slice.hpp"

#include <algorithm>
#include <array>

#include "workbench/common/clamp.hpp"
#include "workbench/picture/domain.hpp"

namespace workbench {

namespace {

constexpr std::array Axes{&Point::x, &Point::y, &Point::z};

/// The two axes in the plane across an axis, in their order.
constexpr std::array<std::array<std::size_t, 2>, 3> InPlane{{{1, 2}, {0, 2}, {0, 1}}};

/// Two neighbours of a place among the samples, and the way from one to the
/// other.
struct Between {
    int lower;
    double part;

    Between(double place, int samples)
        : lower(std::clamp(static_cast<int>(place), 0, samples - 2)), part(place - lower) {}
};

/// What lies between two numbers; between two that are equal, also infinite
/// ones, nothing else.
double mixed(double a, double b, double part) {
    return a == b ? a : a + (b - a) * part;
}

Tessar::rgba_float_t mixed(Tessar::rgba_float_t const& a, Tessar::rgba_float_t const& b,
                           double part) {
    Tessar::rgba_float_t result;
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = static_cast<float>(mixed(double{a[i]}, double{b[i]}, part));
    return result;
}

}  // namespace

Slice::Slice(Field const& field, Orlo::ColormapPtr const& map, SliceOptions const& options)
    : map_(map), options_(options), grid_(field.grid()) {
    double const half = grid_.halfEdge;
    plane_ = options.position >= half ? half : options.position >= -half ? options.position : -half;
    sampleField(field);
    if (options_.mode != SliceMode::Smooth)
        return;
    colours_.reserve(scalars_.size());
    for (double const scalar : scalars_)
        colours_.push_back(colourOf(scalar));
}

/// The plane may lie between two layers of samples.
void Slice::sampleField(Field const& field) {
    auto const normal = static_cast<std::size_t>(options_.normal);
    Between const layer(grid_.place(plane_), grid_.samples);
    scalars_.resize(index(0, grid_.samples));
    for (int along = 0; along < grid_.samples; ++along)
        for (int across = 0; across < grid_.samples; ++across) {
            std::array<int, 3> place{};
            place[InPlane[normal][0]] = across;
            place[InPlane[normal][1]] = along;
            place[normal] = layer.lower;
            double const lower = field.sample(place[0], place[1], place[2]);
            ++place[normal];
            double const upper = field.sample(place[0], place[1], place[2]);
            scalars_[index(across, along)] = texel(mixed(lower, upper, layer.part));
        }
}

double Slice::texel(double sample) const {
    auto const [min, max] = options_.datarange;
    double const scalar = clampToUnit((sample - min) / (max - min));
    return min == max ? 0.0
                      : static_cast<int>(scalar * options_.precision + 0.5) /
                            static_cast<double>(options_.precision);
}

/// The map's domain spans the texture's 0 to 1.
Tessar::rgba_float_t Slice::colourOf(double scalar) const {
    return map_->getColor(domainOf(*map_).at(scalar));
}

std::size_t Slice::index(int across, int along) const {
    return static_cast<std::size_t>(along) * static_cast<std::size_t>(grid_.samples) +
           static_cast<std::size_t>(across);
}

Tessar::rgba_float_t Slice::colourAt(double across, double along) const {
    if (options_.mode == SliceMode::Discrete)
        return colourOf(
            scalars_[index(static_cast<int>(across + 0.5), static_cast<int>(along + 0.5))]);
    Between const x(across, grid_.samples);
    Between const y(along, grid_.samples);
    auto const blend = [&](auto const& texture) {
        std::size_t const corner = index(x.lower, y.lower);
        std::size_t const above = index(x.lower, y.lower + 1);
        return mixed(mixed(texture[corner], texture[corner + 1], x.part),
                     mixed(texture[above], texture[above + 1], x.part), y.part);
    };
    return options_.mode == SliceMode::Smooth ? blend(colours_) : colourOf(blend(scalars_));
}

std::optional<Fragment> Slice::meet(Ray const& ray) const {
    auto const normal = static_cast<std::size_t>(options_.normal);
    auto const place = [&](std::size_t axis, double depth) {
        double Point::*const coordinate = Axes[axis];
        return grid_.place(ray.origin.*coordinate + depth * (ray.direction.*coordinate));
    };
    double const depth = (plane_ - ray.origin.*Axes[normal]) / (ray.direction.*Axes[normal]);
    double const across = place(InPlane[normal][0], depth);
    double const along = place(InPlane[normal][1], depth);
    double const last = grid_.samples - 1;
    // written so that a ray along the plane, which has no depth, misses
    if (!(across >= 0 && across <= last && along >= 0 && along <= last))
        return std::nullopt;
    return Fragment{depth, colourAt(across, along), options_.opacity};
}

}  // namespace workbench
