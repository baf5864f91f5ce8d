/// A plane through a field, coloured by a map.
#pragma once

#include "host/colormap/Colormap.hpp"
#include "workbench/common/Interval.hpp"
#include "workbench/scene/Field.hpp"
#include "workbench/scene/Renderable.hpp"

namespace workbench {

/// Between its samples a slice shows the nearest one, or the colour of the
/// scalar in between, or the colour in between.
enum class SliceMode { Discrete, Interpolated, Smooth };

/// How a slice shows a field.
struct SliceOptions {
    SliceMode mode = SliceMode::Interpolated;
    int normal = 1;         ///< the axis across the plane: 0 x, 1 y, 2 z
    double position = 0.0;  ///< of the plane on that axis, kept inside the grid
    Interval datarange;     ///< what the map's first and last colour stand for
    int precision = 255;    ///< steps of a texture's scalar between 0 and 1
    double opacity = 1.0;   ///< 0 to 1
};

/// The samples of a field in a plane, as a texture: mapped through the data
/// range to 0..1, clamped to that, and rounded to the texture's precision. A
/// sample that is no number counts as 0, as does every sample if the data range
/// is empty.
class Slice : public Renderable {
public:
    Slice(Field const& field, Orlo::ColormapPtr const& map, SliceOptions const& options);

    std::optional<Fragment> intersect(Ray const& ray) const override;
    std::optional<Reading> read(Ray const& ray) const override;

private:
    /// Where a ray meets the plane: how deep, and where among the samples.
    struct Hit {
        double depth;
        double across;
        double along;
    };

    std::optional<Hit> hit(Ray const& ray) const;
    void sampleField(Field const& field);
    double texel(double sample) const;
    double scalarOf(double texel) const;
    Tessar::rgba_float_t colorOf(double texel) const;
    template <class Texture>
    auto blend(Texture const& texture, double across, double along) const;
    template <class Texture>
    auto shown(Texture const& texture, double across, double along) const;
    Tessar::rgba_float_t colorAt(double across, double along) const;
    std::size_t index(int across, int along) const;

    Orlo::ColormapPtr map_;
    SliceOptions options_;
    UniformGrid grid_;
    double plane_;                              ///< coordinate of the plane
    std::vector<double> samples_;               ///< row by row along the second axis
    std::vector<double> texels_;                ///< 0 to 1, of the samples
    std::vector<Tessar::rgba_float_t> colors_;  ///< of the texels, with the mode Smooth
};

}  // namespace workbench
