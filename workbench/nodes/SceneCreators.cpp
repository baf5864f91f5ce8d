#include "workbench/nodes/SceneCreators.hpp"

#include <array>

#include "workbench/nodes/kinds.hpp"

namespace workbench {

struct SceneCreators::Entries {
    std::array<Entry, 8> all{radialScalarFieldEntry(), gridEntry(),        scalarfieldEntry(),
                             orthoSliceEntry(),        colorLegendEntry(), showRangeEntry(),
                             globalTimeEntry(),        range100Entry()};
};

SceneCreators::SceneCreators() : entries_(std::make_unique<Entries>()) {}
SceneCreators::~SceneCreators() = default;

}  // namespace workbench
