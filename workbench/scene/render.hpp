/// From a network to a picture.
#pragma once

#include <functional>

#include "host/object/VObject.hpp"
#include "workbench/picture/Image.hpp"

namespace workbench {

/// Whether the object is a viewer, of which `render` makes pictures. [any]
bool isViewer(Orlo::VObject const& object);

/// The picture that a viewer shows, of the viewer's "size", with the values
/// that hold in the pool. The viewer is requested first, and with it everything
/// that its scene shows, so that all is up to date.
///
/// `progress` hears how much is done, from 0 to 1. Throws `CallError` if the
/// object is no viewer, `WorkError` if its size is none that a picture can
/// have. The same network gives the same bytes on every system. [host]
Image render(Orlo::VObject& viewer, Orlo::PoolPtr const& pool,
             std::function<void(double)> const& progress = {});

}  // namespace workbench
