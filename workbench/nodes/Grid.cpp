/// Takes a grid out of a bundle.
#include "host/values/TypedSlot.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/nodes/Bundle.hpp"
#include "workbench/nodes/HostObject.hpp"
#include "workbench/nodes/Port.hpp"
#include "workbench/nodes/kinds.hpp"
#include "workbench/nodes/values.hpp"

using namespace Orlo;

namespace workbench {

namespace {

/// Provides the grid of the bundle at "spacetime" whose name is that of
/// "gridname", before the at sign; nothing, which is a fault, if there is none.
class Grid : public Node {
public:
    using Node::Node;

    bool update(VRequest& request, double) override {
        PoolPtr const& pool = request.pool();
        BundlePtr const bundle = spacetime_.read(pool);
        Identifier wanted;
        gridname_.read(pool, wanted);
        bool const found = bundle && bundle->hasGrid(wanted.name);
        setFault(!bundle  ? Fault{"spacetime", "there is no data set to take a grid from"}
                 : !found ? Fault{"gridname", "the data set has no grid " + inQuotes(wanted.name)}
                          : Fault());
        grid_.publish(
            pool, found ? std::make_shared<NamedGrid>(NamedGrid{bundle, wanted.name}) : GridPtr());
        return true;
    }

private:
    Input<BundlePtr> spacetime_{this, "spacetime"};
    TypedSlot<Identifier> gridname_{
        this, "gridname", {"AnalyticUniformGrid", "AnalyticUniformGrid"}, 0};
    Output<GridPtr> grid_{this, "grid"};
};

}  // namespace

Entry gridEntry() {
    return makeEntry<Grid>("Strand", "Grid", "The grid of a bundle, by its name.");
}

}  // namespace workbench
