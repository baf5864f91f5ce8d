/// What scenes show.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "host/colormap/Colormap.hpp"
#include "workbench/picture/Image.hpp"
#include "workbench/scene/View.hpp"

namespace workbench {

/// What a ray meets.
struct Fragment {
    double depth;                ///< in the direction of the view
    Tessar::rgba_float_t color;  ///< its alpha means nothing
    double opacity;              ///< 0 to 1; 1 hides what is behind
};

/// What a place of a picture shows: where its colour comes from.
struct Reading {
    std::optional<double> sample;  ///< of the data, as it is between its samples
    std::optional<double> scalar;  ///< what the map was asked for
    Orlo::ColormapPtr map;         ///< may be empty
};

/// Something that a scene shows: in space, or in front of all that is there.
///
/// Threads: never changes; any thread may draw it.
class Renderable {
public:
    virtual ~Renderable() = default;

    static constexpr char const* Description = "A Renderable Object.";

    /// What a ray meets of it. [any]
    virtual std::optional<Fragment> intersect(Ray const& ray) const;
    /// The same, by the numbers that the colour there comes from. [any]
    virtual std::optional<Reading> read(Ray const& ray) const;
    /// Draws what lies in the plane of the picture. [any]
    virtual void drawOver(Image& image) const;
    /// What of it lies in the plane of the picture at a pixel. [any]
    virtual std::optional<Reading> readOver(Image const& image, int x, int y) const;
};

using RenderablePtr = std::shared_ptr<Renderable const>;

/// All that a viewer shows.
struct Scene {
    std::vector<RenderablePtr> members;  ///< none of them empty

    static constexpr char const* Description = "A Scene Object.";
};

using ScenePtr = std::shared_ptr<Scene const>;

}  // namespace workbench
