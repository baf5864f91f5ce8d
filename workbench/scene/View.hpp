/// How a viewer looks at its scene.
#pragma once

#include <memory>

#include "workbench/scene/geometry.hpp"

namespace workbench {

/// A half line in space. Its direction is so long that one step along it goes
/// one unit deeper into the picture.
struct Ray {
    Point origin;
    Point direction;
};

/// How a camera looks. One that stands at the point it looks at looks along -z;
/// one that looks along its "up" takes another axis for it.
struct View {
    Point observer{0, 2.4, 1};  ///< where the camera stands
    Point lookat{0, 0, 0};      ///< the point in the middle of the picture
    Point up{0, 1, 0};          ///< the direction that is upward in the picture
    double zoom = 45.0;         ///< vertical angle in degrees, kept in 0.001 to 170
    double minDepth = 0.02;     ///< depths that are shown, from this one
    double maxDepth = 100.0;    ///< to this one
    bool orthographic = false;  ///< parallel rays; `lookat` is seen at the same size

    static constexpr char const* Description = "A View Object.";
};

using ViewPtr = std::shared_ptr<View const>;

/// Finds the rays of a view through the pixels of a picture.
class Lens {
public:
    /// For a picture of so many pixels.
    Lens(View const& view, int width, int height);

    /// The ray through the middle of a pixel, counted from the left and from
    /// the top.
    Ray through(int x, int y) const;

private:
    Point eye_;
    Point forward_;
    Point right_;   ///< as long as half the picture is high, where the depth is 1
    Point upward_;  ///< the same, at a right angle
    double halfWidth_;
    double halfHeight_;
    bool parallel_;
};

}  // namespace workbench
