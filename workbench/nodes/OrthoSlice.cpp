/// Shows a plane through a field.
#include "host/values/TypedSlot.hpp"
#include "workbench/common/clamp.hpp"
#include "workbench/nodes/Bundle.hpp"
#include "workbench/nodes/HostObject.hpp"
#include "workbench/nodes/Port.hpp"
#include "workbench/nodes/kinds.hpp"
#include "workbench/scene/Slice.hpp"

using namespace Orlo;

namespace workbench {

namespace {

/// | parameter          | meaning                                                |
/// |--------------------|--------------------------------------------------------|
/// | "datarange"        | the data that the map's domain stands for              |
/// | "mode"             | what is shown between samples; see `SliceMode`         |
/// | "orientation"      | the axis across the plane                              |
/// | "textureprecision" | bits of a sample in the texture                        |
/// | "transparency"     | how opaque the plane is: 1 hides all behind, 0 nothing |
/// | "position"         | of the plane on that axis, in the units of the camera  |
///
/// Without a field or without a map nothing is shown, which is a fault.
class OrthoSlice : public Node {
public:
    using Node::Node;

    bool update(VRequest& request, double) override {
        PoolPtr const& pool = request.pool();
        FieldPtr const field = scalarfield_.read(pool);
        ColormapPtr const map = colormap_.read(pool);
        setFault(!field ? Fault{"scalarfield", "there is no field to show"}
                 : !map ? Fault{"colormap", "there is no colour map to show the field with"}
                        : Fault());
        renderable_.publish(
            pool, field && map ? std::make_shared<Slice>(*field, map, options(pool)) : nullptr);
        return true;
    }

private:
    SliceOptions options(PoolPtr const& pool) const {
        SliceOptions options;
        Range datarange;
        Enum mode, orientation, precision;
        double transparency = 1;
        datarange_.read(pool, datarange);
        mode_.read(pool, mode);
        orientation_.read(pool, orientation);
        textureprecision_.read(pool, precision);
        transparency_.read(pool, transparency);
        position_.read(pool, options.position);
        options.datarange = {datarange.minimum, datarange.maximum};
        options.mode = mode.Equal("Discrete") ? SliceMode::Discrete
                       : mode.Equal("Smooth") ? SliceMode::Smooth
                                              : SliceMode::Interpolated;
        options.normal = orientation.Equal("X") ? 0 : orientation.Equal("Z") ? 2 : 1;
        options.precision = precision.Equal("16bit") ? 65535 : 255;
        options.opacity = clampToUnit(transparency);
        return options;
    }

    static Enum modes() {
        return Enum()
            .addCase("Discrete")
            .addCase("Interpolated")
            .addCase("Smooth")
            .select("Interpolated");
    }
    static Enum axes() { return Enum().addCase("X").addCase("Y").addCase("Z").select("Y"); }

    Input<FieldPtr> scalarfield_{this, "scalarfield"};
    Input<ColormapPtr> colormap_{this, "colormap"};
    Input<ChartPtr> chart_{this, "chart"};
    TypedSlot<Range> datarange_{this, "datarange", Range(0, 1), 0};
    TypedSlot<Enum> mode_{this, "mode", modes(), 0};
    TypedSlot<Enum> orientation_{this, "orientation", axes(), 0};
    TypedSlot<Enum> textureprecision_{this, "textureprecision",
                                      Enum().addCase("8bit").addCase("16bit"), 0};
    TypedSlot<double> transparency_{this, "transparency", 1.0, 0};
    TypedSlot<double> position_{this, "position", 0.0, 0};
    Output<RenderablePtr> renderable_{this, "renderable"};
};

}  // namespace

Entry orthoSliceEntry() {
    return makeEntry<OrthoSlice>("Display", "OrthoSlice",
                                 "A plane through a scalar field, coloured by a map.");
}

}  // namespace workbench
