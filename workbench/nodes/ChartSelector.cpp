/// Coordinates for what is shown.
#include "workbench/nodes/Bundle.hpp"
#include "workbench/nodes/HostObject.hpp"
#include "workbench/nodes/Port.hpp"
#include "workbench/nodes/kinds.hpp"

using namespace Orlo;

namespace workbench {

namespace {

/// Provides the chart of the grid at "::atlas"; without a grid, a chart of none.
class ChartSelector : public HostObject {
public:
    using HostObject::HostObject;

    bool update(VRequest& request, double) override {
        chart_.publish(request.pool(), std::make_shared<Chart>(Chart{atlas_.read(request.pool())}));
        return true;
    }

private:
    Input<GridPtr> atlas_{this, "::atlas"};
    Output<ChartPtr> chart_{this, "::chart"};
};

}  // namespace

ObjectPtr makeChartSelector(std::string const& name) {
    return new ChartSelector(name);
}

}  // namespace workbench
