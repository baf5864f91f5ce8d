/// Takes a field out of a bundle.
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

/// Provides the field on the grid at "grid" whose name is that of "fieldname",
/// before the at sign, as it is at the "time"; nothing, which is a fault, if there
/// is none.
class Scalarfield : public Node {
public:
    using Node::Node;

    bool update(VRequest& request, double) override {
        PoolPtr const& pool = request.pool();
        GridPtr const grid = grid_.read(pool);
        Identifier wanted;
        VTime now;
        fieldname_.read(pool, wanted);
        time_.read(pool, now);
        FieldPtr const field =
            grid ? grid->bundle->field(grid->name, wanted.name, now.value) : FieldPtr();
        setFault(!grid    ? Fault{"grid", "there is no grid to take a field from"}
                 : !field ? Fault{"fieldname", "there is no field " + inQuotes(wanted.name) +
                                                   " on the grid " + inQuotes(grid->name)}
                          : Fault());
        field_.publish(pool, field);
        return true;
    }

private:
    Input<GridPtr> grid_{this, "grid"};
    TypedSlot<VTime> time_{this, "time", VTime(0, 0, 1, 0.1, "", "", ""), 0};
    TypedSlot<Identifier> fieldname_{this, "fieldname", {"radialfield", "radialfield"}, 0};
    Output<FieldPtr> field_{this, "field"};
};

}  // namespace

Entry scalarfieldEntry() {
    return makeEntry<Scalarfield>("Strand", "Scalarfield", "A field of a bundle, by its name.");
}

}  // namespace workbench
