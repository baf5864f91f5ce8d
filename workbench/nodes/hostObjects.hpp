/// The objects that the host brings along.
#pragma once

#include <string>

#include "host/object/VObject.hpp"

namespace workbench {

/// An object that a network expects to find: `kind` is the catalogue key that
/// its comment names ("CameraControl", "Create/Webserver"), or empty where it
/// stands by its name alone. Always gives an object that answers requests; of
/// what the host does not know it makes a `Placeholder`.
///
/// A viewer looks through the camera of its context: the two are connected as
/// soon as both are there, whatever their order. A script that connects the
/// viewer's "camera" itself has the last word. [host]
///
/// | object        | recognised by                          | parameters and inputs      |
/// |---------------|----------------------------------------|----------------------------|
/// | camera        | kind "CameraControl", name "Camera"    | see `View.hpp`             |
/// | viewer        | name "Viewer" and digits               | "size", "background"; |
/// |               |                                        | "camera", "scene"          |
/// | scene         | name that ends with "Scene"            | "<member>.renderable"      |
/// | chart selector| name "ChartSelector"                   | "::atlas"                  |
Orlo::ObjectPtr makeHostObject(std::string const& kind, std::string const& name,
                               Nucleo::Intercube const& context);

}  // namespace workbench
