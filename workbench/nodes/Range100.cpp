/// A range of values.
#include "host/values/TypedSlot.hpp"
#include "workbench/nodes/HostObject.hpp"
#include "workbench/nodes/Port.hpp"
#include "workbench/nodes/kinds.hpp"

using namespace Orlo;

namespace workbench {

namespace {

/// Provides a range: with the mode "MinMax" from "min" to "max", with
/// "ScaleOffset" from "offset" to "offset" + "scale". Both are 0 to 100 at
/// first.
class Range100 : public Node {
public:
    using Node::Node;

    bool update(VRequest& request, double) override {
        PoolPtr const& pool = request.pool();
        Enum mode;
        double scale = 100, min = 0, max = 100, offset = 0;
        mode_.read(pool, mode);
        scale_.read(pool, scale);
        min_.read(pool, min);
        max_.read(pool, max);
        offset_.read(pool, offset);
        range_.publish(pool,
                       mode.Equal("ScaleOffset") ? Range(offset, offset + scale) : Range(min, max));
        return true;
    }

private:
    TypedSlot<Enum> mode_{this, "mode", Enum().addCase("MinMax").addCase("ScaleOffset"), 0};
    TypedSlot<double> scale_{this, "scale", 100.0, 0};
    TypedSlot<double> min_{this, "min", 0.0, 0};
    TypedSlot<double> max_{this, "max", 100.0, 0};
    TypedSlot<double> offset_{this, "offset", 0.0, 0};
    Output<Range> range_{this, "range"};
};

}  // namespace

Entry range100Entry() {
    return makeEntry<Range100>("Create", "Range100", "A range of values, at first 0 to 100.");
}

}  // namespace workbench
