/// The scalars of a map.
#pragma once

#include "host/colormap/Colormap.hpp"
#include "workbench/common/Interval.hpp"

namespace workbench {

/// The scalars from the lower to the upper end of a map.
inline Interval domainOf(Orlo::Colormap const& map) {
    return {double(map.getMin()), double(map.getMax())};
}

}  // namespace workbench
