/// The time of a network.
#include "host/values/TypedSlot.hpp"
#include "workbench/nodes/HostObject.hpp"
#include "workbench/nodes/kinds.hpp"

using namespace Orlo;

namespace workbench {

namespace {

/// Holds one time; others connect their own to its parameter "value".
class GlobalTime : public Node {
public:
    using Node::Node;

private:
    TypedSlot<VTime> value_{this, "value", VTime(0, 0, 1, 0.1, "", "", ""), 0};
};

}  // namespace

Entry globalTimeEntry() {
    return makeEntry<GlobalTime>("Create", "GlobalTime", "A time that others follow.");
}

}  // namespace workbench
