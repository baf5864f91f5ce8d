/// How a viewer looks at its scene.
#pragma once

#include <memory>

#include "workbench/nodes/values.hpp"

namespace workbench {

/// A half line in space. Its direction is so long that one step along it goes
/// one unit deeper into the picture.
struct Ray {
    Point origin;
    Point direction;
};

/// What the object "CameraControl" says, per viewer where a script sets it so.
/// Its parameters, in their order:
///
/// | name       | text, by default | meaning                                          |
/// |------------|------------------|--------------------------------------------------|
/// | "observer" | `{0,2.4,1}`      | where the camera stands                          |
/// | "lookat"   | `{0,0,0}`        | the point in the middle of the picture           |
/// | "up"       | `{0,1,0}`        | the direction that is upward in the picture      |
/// | "zoom"     | `45`             | vertical angle of view in degrees, 0.001 to 170; |
/// |            |                  | smaller is closer                                |
/// | "near"     | `0.02`           | least depth that is shown                        |
/// | "far"      | `100`            | greatest depth that is shown                     |
/// | "options"  | ` -Orthographic` | parallel rays; "lookat" is seen at the same size |
/// | "time"     | `0[0,1]@0.1`     | for others; no picture depends on it             |
///
/// A camera that stands at the point it looks at looks along -z; one that looks
/// along its "up" takes another axis for it.
struct View {
    Point observer{0, 2.4, 1};
    Point lookat{0, 0, 0};
    Point up{0, 1, 0};
    double zoom = 45.0;
    double nearest = 0.02;
    double farthest = 100.0;
    bool orthographic = false;

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
