#include "workbench/nodes/NodeCreators.hpp"

#include <array>

#include "workbench/nodes/kinds.hpp"

namespace workbench {

struct NodeCreators::Entries {
    std::array<Entry, 8> all{radialScalarFieldEntry(), gridEntry(),        scalarfieldEntry(),
                             orthoSliceEntry(),        colorLegendEntry(), showRangeEntry(),
                             globalTimeEntry(),        range100Entry()};
};

NodeCreators::NodeCreators() : entries_(std::make_unique<Entries>()) {}
NodeCreators::~NodeCreators() = default;

}  // namespace workbench
