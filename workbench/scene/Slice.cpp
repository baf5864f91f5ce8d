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

    Between(double position, int samples)
        : lower(std::clamp(static_cast<int>(position), 0, samples - 2)), part(position - lower) {}
};

/// What lies between two numbers; between two that are equal, also infinite
/// ones, nothing else.
double lerp(double a, double b, double part) {
    return a == b ? a : a + (b - a) * part;
}

Tessar::rgba_float_t lerp(Tessar::rgba_float_t const& a, Tessar::rgba_float_t const& b,
                          double part) {
    Tessar::rgba_float_t result;
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = static_cast<float>(lerp(double{a[i]}, double{b[i]}, part));
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
    colors_.reserve(texels_.size());
    for (double const texel : texels_)
        colors_.push_back(colorOf(texel));
}

/// The plane may lie between two layers of samples.
void Slice::sampleField(Field const& field) {
    auto const normal = static_cast<std::size_t>(options_.normal);
    Between const layer(grid_.position(plane_), grid_.samples);
    samples_.resize(index(0, grid_.samples));
    texels_.resize(samples_.size());
    for (int along = 0; along < grid_.samples; ++along)
        for (int across = 0; across < grid_.samples; ++across) {
            std::array<int, 3> position{};
            position[InPlane[normal][0]] = across;
            position[InPlane[normal][1]] = along;
            position[normal] = layer.lower;
            double const lower = field.sample(position[0], position[1], position[2]);
            ++position[normal];
            double const upper = field.sample(position[0], position[1], position[2]);
            double const sample = lerp(lower, upper, layer.part);
            samples_[index(across, along)] = sample;
            texels_[index(across, along)] = texel(sample);
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
double Slice::scalarOf(double texel) const {
    return domainOf(*map_).at(texel);
}

Tessar::rgba_float_t Slice::colorOf(double texel) const {
    return map_->getColor(scalarOf(texel));
}

std::size_t Slice::index(int across, int along) const {
    return static_cast<std::size_t>(along) * static_cast<std::size_t>(grid_.samples) +
           static_cast<std::size_t>(across);
}

/// What a texture has at a place between four of its entries.
template <class Texture>
auto Slice::blend(Texture const& texture, double across, double along) const {
    Between const x(across, grid_.samples);
    Between const y(along, grid_.samples);
    std::size_t const corner = index(x.lower, y.lower);
    std::size_t const above = index(x.lower, y.lower + 1);
    return lerp(lerp(texture[corner], texture[corner + 1], x.part),
                lerp(texture[above], texture[above + 1], x.part), y.part);
}

/// What the mode shows of a texture at a place.
template <class Texture>
auto Slice::shown(Texture const& texture, double across, double along) const {
    return options_.mode == SliceMode::Discrete
               ? texture[index(static_cast<int>(across + 0.5), static_cast<int>(along + 0.5))]
               : blend(texture, across, along);
}

Tessar::rgba_float_t Slice::colorAt(double across, double along) const {
    return options_.mode == SliceMode::Smooth ? blend(colors_, across, along)
                                              : colorOf(shown(texels_, across, along));
}

std::optional<Slice::Hit> Slice::hit(Ray const& ray) const {
    auto const normal = static_cast<std::size_t>(options_.normal);
    auto const position = [&](std::size_t axis, double depth) {
        double Point::*const coordinate = Axes[axis];
        return grid_.position(ray.origin.*coordinate + depth * (ray.direction.*coordinate));
    };
    double const depth = (plane_ - ray.origin.*Axes[normal]) / (ray.direction.*Axes[normal]);
    double const across = position(InPlane[normal][0], depth);
    double const along = position(InPlane[normal][1], depth);
    double const last = grid_.samples - 1;
    // written so that a ray along the plane, which has no depth, misses
    if (!(across >= 0 && across <= last && along >= 0 && along <= last))
        return std::nullopt;
    return Hit{depth, across, along};
}

std::optional<Fragment> Slice::intersect(Ray const& ray) const {
    std::optional<Hit> const met = hit(ray);
    if (!met)
        return std::nullopt;
    return Fragment{met->depth, colorAt(met->across, met->along), options_.opacity};
}

/// With the mode Smooth a colour between samples is that of no scalar.
std::optional<Reading> Slice::read(Ray const& ray) const {
    std::optional<Hit> const met = hit(ray);
    if (!met)
        return std::nullopt;
    Reading reading{shown(samples_, met->across, met->along), {}, map_};
    if (options_.mode != SliceMode::Smooth)
        reading.scalar = scalarOf(shown(texels_, met->across, met->along));
    return reading;
}

}  // namespace workbench
