/// A data set that is computed: one hill.
#include <algorithm>

#include "host/values/TypedSlot.hpp"
#include "workbench/nodes/Bundle.hpp"
#include "workbench/nodes/HostObject.hpp"
#include "workbench/nodes/Port.hpp"
#include "workbench/nodes/kinds.hpp"
#include "workbench/nodes/values.hpp"
#include "workbench/scene/Hill.hpp"

using namespace Orlo;

namespace workbench {

namespace {

constexpr char const* GridName = "AnalyticUniformGrid";
constexpr char const* FieldName = "radialfield";

/// More samples than this would not fit into a texture.
constexpr int MaxSamples = 2048;

/// The hill over time: in `steps` equal steps from time 0 to `maxTime` it sinks;
/// before and after it rests. A time between two steps shows the nearer one.
class HillBundle : public Bundle {
public:
    HillBundle(UniformGrid const& grid, int steps, double maxTime, double height)
        : grid_(grid), steps_(steps), maxTime_(maxTime), height_(height) {}

    bool hasGrid(std::string const& grid) const override { return grid == GridName; }

    FieldPtr field(std::string const& grid, std::string const& name, double time) const override {
        if (grid != GridName || name != FieldName)
            return nullptr;
        return std::make_shared<Hill>(grid_, height_, age(time));
    }

private:
    double age(double time) const {
        if (steps_ < 1 || !(maxTime_ > 0) || !(time > 0))
            return 0.0;
        double const part = time < maxTime_ ? time / maxTime_ : 1.0;
        return static_cast<int>(part * steps_ + 0.5) / static_cast<double>(steps_);
    }

    UniformGrid grid_;
    int steps_;
    double maxTime_;
    double height_;
};

/// | parameter   | meaning                                                       |
/// |-------------|---------------------------------------------------------------|
/// | "gridsize"  | samples in each direction, 2 to 2048                          |
/// | "size"      | half an edge of the cube, above 0, in the units of the camera |
/// | "timesteps" | steps from time 0 to "tmax"; below 1 the hill never sinks     |
/// | "tmax"      | the time at which the hill has sunk                           |
/// | "a"         | the height of the hill                                        |
/// | "Threads"   | nothing: the hill is computed without threads of its own      |
///
/// Numbers outside their range count as the nearest inside; a size that is none
/// counts as 1.
class RadialScalarField : public Node {
public:
    using Node::Node;

    bool update(VRequest& request, double) override {
        PoolPtr const& pool = request.pool();
        int samples = 2, steps = 0;
        double halfEdge = 1, maxTime = 1, height = 1;
        gridsize_.read(pool, samples);
        size_.read(pool, halfEdge);
        timesteps_.read(pool, steps);
        tmax_.read(pool, maxTime);
        a_.read(pool, height);
        UniformGrid const grid{std::clamp(samples, 2, MaxSamples),
                               halfEdge > 0 && halfEdge < 1e100 ? halfEdge : 1.0};
        bundle_.publish(pool, std::make_shared<HillBundle>(grid, steps, maxTime, height));
        return true;
    }

private:
    TypedSlot<int> gridsize_{this, "gridsize", 32, 0};
    TypedSlot<double> size_{this, "size", 1.0, 0};
    TypedSlot<int> timesteps_{this, "timesteps", 10, 0};
    TypedSlot<double> tmax_{this, "tmax", 1.0, 0};
    TypedSlot<double> a_{this, "a", 1.0, 0};
    TypedSlot<Nothing> threads_{this, "Threads", Nothing(), 0};
    Output<BundlePtr> bundle_{this, "bundle"};
};

}  // namespace

Entry radialScalarFieldEntry() {
    return makeEntry<RadialScalarField>(
        "CreateBundle", "RadialScalarField",
        "A data set with one scalar field, a hill that sinks with time.");
}

}  // namespace workbench
