/// How colours look to people who tell fewer of them apart.
#pragma once

#include "workbench/gallery/Light.hpp"

namespace workbench {

/// The kinds of colour-vision deficiency: the cones for long, middle or short
/// waves do not work.
enum class Deficiency { Protan, Deutan, Tritan };

/// The light that looks to everybody as the given one does to a person with the
/// full deficiency. Amounts may lie slightly outside 0 to 1.
///
/// The simulation is that of Machado, Oliveira and Fernandes, "A
/// Physiologically-based Model for Simulation of Color Vision Deficiency", IEEE
/// Transactions on Visualization and Computer Graphics 15 (6), 2009, with its
/// matrices for severity 1.0, which apply to light, not to companded colours.
Light seenWith(Deficiency deficiency, Light const& light);

}  // namespace workbench
