/// What scenes show.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "workbench/picture/Image.hpp"
#include "workbench/scene/View.hpp"

namespace workbench {

/// What a ray meets.
struct Fragment {
    double depth;                ///< in the direction of the view
    Tessar::rgba_float_t color;  ///< its alpha means nothing
    double opacity;              ///< 0 to 1; 1 hides what is behind
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
    /// Draws what lies in the plane of the picture. [any]
    virtual void drawOver(Image& image) const;
};

using RenderablePtr = std::shared_ptr<Renderable const>;

/// All that a viewer shows.
struct Scene {
    std::vector<RenderablePtr> members;  ///< none of them empty

    static constexpr char const* Description = "A Scene Object.";
};

using ScenePtr = std::shared_ptr<Scene const>;

}  // namespace workbench
