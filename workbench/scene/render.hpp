/// From a scene to a picture.
#pragma once

#include <functional>

#include "workbench/picture/Image.hpp"
#include "workbench/scene/Renderable.hpp"

namespace workbench {

/// What a viewer shows at one time.
struct Shown {
    int width = 1046;  ///< pixels
    int height = 650;
    Tessar::rgba_float_t background;
    View view;
    ScenePtr scene;  ///< may be empty
};

/// Its picture. `progress` hears how much is done, from 0 to 1. Throws
/// `std::invalid_argument` for a size that no picture has. The same scene gives
/// the same bytes on every system. [any]
Image render(Shown const& shown, std::function<void(double)> const& progress = {});

/// What a pixel of its picture shows: the frontmost that has numbers. Empty outside
/// the picture and where nothing is. [any]
std::optional<Reading> readPixel(Shown const& shown, Image const& picture, int x, int y);

}  // namespace workbench
