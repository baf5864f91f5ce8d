/// How a viewer looks at its scene.
#pragma once

#include <memory>

#include "workbench/scene/values.hpp"

namespace workbench {

/// A half line in space.
struct Ray {
    Point origin;
    Point direction;  ///< of length 1
};

/// The parameters of the object "CameraControl", all per viewer where a script
/// sets them so, in this order:
///
/// | name       | text, by default      | meaning                                          |
/// |------------|-----------------------|--------------------------------------------------|
/// | "lookat"   | `{0,0,0}`             | the point in the middle of the picture           |
/// | "observer" | `{0,2.4,1}`           | where the camera stands                          |
/// | "options"  | ` -Orthographic`      | parallel rays, as wide as at "lookat"            |
/// | "time"     | `0[0,1]@0.1`          | for others; no picture depends on it             |
/// | "up"       | `{0,1,0}`             | the direction that is upward in the picture      |
/// | "zoom"     | `45`                  | vertical angle of view in degrees, 0.001 to 170; |
/// |            |                       | smaller is closer                                |
///
/// A camera that stands at the point it looks at looks along -z; one that looks
/// along its "up" takes another axis for it.
struct View {
    Point observer{0, 2.4, 1};
    Point lookat{0, 0, 0};
    Point up{0, 1, 0};
    double zoom = 45.0;
    bool orthographic = false;

    bool operator==(View const&) const = default;
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
    Point right_;   ///< half the height of the picture, at the distance 1 or at "lookat"
    Point upward_;  ///< the same length, at a right angle
    double middleX_;
    double middleY_;
    bool parallel_;
};

}  // namespace workbench
