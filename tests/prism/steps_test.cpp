/// The steps of an update, in their order.
#include <gtest/gtest.h>

#include <utility>

#include "host/values/VValueParameter.hpp"
#include "tests/prism/MapDescription.hpp"
#include "tests/support/PluginTest.hpp"

namespace tests {
namespace {

using namespace Orlo;
using Nucleo::Ageable;

using Log = std::vector<std::string>;

/// Writes down what an object does. What leaves nothing but a trace (an icon
/// drawn, the time advanced) is found at the next step that is seen; of these
/// two the icon is named first.
class Steps {
public:
    Steps(VObject& object, PoolPtr const& pool);
    Steps(Steps const&) = delete;
    Steps& operator=(Steps const&) = delete;
    ~Steps();

    void note(std::string const& step);
    /// The steps since the last call.
    Log take();

private:
    class Publishing;
    class Cache;

    void noteTraces();

    Tincture& object_;
    PoolPtr const pool_;
    StrongPtr<Publishing, ValueNotifier> listener_;
    Nucleo::WeakPtr<Cache, Nucleo::ChunkBase> cache_;
    unsigned icons_ = 0;
    Ageable::Stamp time_ = 0;
    Log steps_;
};

/// A parameter's value in the pool that tells when it is read.
template <class T>
class ReadValue : public VValue<T> {
public:
    ReadValue(T const& value, std::string name, Steps& steps)
        : VValue<T>(value), name_(std::move(name)), steps_(steps) {}

    bool getValue(T& target) const override {
        steps_.note("read " + name_);
        return VValue<T>::getValue(target);
    }

private:
    std::string const name_;
    Steps& steps_;
};

/// Puts such a value into the pool if the parameter holds a `T`.
template <class T>
void watch(VParameter const& parameter, PoolPtr const& pool, Steps& steps) {
    T value{};
    StrongPtr<VTypedValueBase<T>, VValueBase> const own(parameter.ownValue());
    if (!own || !own->getValue(value))
        return;
    parameter.addShadow(pool);
    pool->createVariable(parameter, new ReadValue<T>(value, parameter.localName(), steps));
}

class Steps::Publishing : public ValueNotifier {
public:
    explicit Publishing(Steps& steps) : steps_(steps) {}
    void valueChanged(ValuePtr const&, PoolPtr const&, std::string const&) override {
        steps_.note("publish");
    }

private:
    Steps& steps_;
};

class Steps::Cache : public Nucleo::Chunk<double> {
public:
    explicit Cache(Steps& steps) : Chunk(1), steps_(steps) {}
    ~Cache() override { steps_.note("drop the cache"); }

private:
    Steps& steps_;
};

Steps::Steps(VObject& object, PoolPtr const& pool)
    : object_(tincture(object)), pool_(pool), listener_(new Publishing(*this)) {
    object_.output()->addNotifier(listener_);
    for (SlotPtr const& slot : inputs(object)) {
        VParameter const& parameter = *slot->ownParameter();
        watch<double>(parameter, pool, *this);
        watch<int>(parameter, pool, *this);
        watch<rgba_float_t>(parameter, pool, *this);
        watch<Enum>(parameter, pool, *this);
        watch<FlagList>(parameter, pool, *this);
        watch<Range>(parameter, pool, *this);
        watch<VTime>(parameter, pool, *this);
    }
    take();
}

Steps::~Steps() {
    if (ColormapPtr const map = mapOf(object_, pool_))
        map->cachedChunk = nullptr;
}

void Steps::noteTraces() {
    if (std::exchange(icons_, object_.iconCount()) != object_.iconCount())
        steps_.emplace_back("draw the icon");
    if (std::exchange(time_, Ageable::now()) != Ageable::now())
        steps_.emplace_back("touch");
}

void Steps::note(std::string const& step) {
    noteTraces();
    steps_.push_back(step);
}

Log Steps::take() {
    noteTraces();
    if (ColormapPtr const map = mapOf(object_, pool_); map && !cache_) {
        StrongPtr<Cache, Nucleo::ChunkBase> const cache = new Cache(*this);
        map->cachedChunk = cache;
        cache_ = cache;
    }
    return std::exchange(steps_, {});
}

std::vector<std::string> readingOrder(MapDescription const& map) {
    std::vector<std::string> names = map.cycle.reads;
    if (names.empty())
        for (ParameterRow const& parameter : map.parameters)
            names.push_back(parameter.name);
    return names;
}

/// The steps that a description asks for.
Log stepsOf(MapDescription const& map, bool first) {
    CycleRow const& cycle = map.cycle;
    bool const keepsMap = !first && cycle.makes != Makes::Always;
    bool const replacesMap = !first && cycle.makes == Makes::Always;
    Log steps;
    auto const take = [&](bool taken, char const* step) {
        if (taken)
            steps.emplace_back(step);
    };
    take(first && cycle.publishesEarly, "publish");
    for (std::string const& name : readingOrder(map))
        steps.push_back("read " + name);
    take(keepsMap, "drop the cache");
    take(cycle.drawsIcon, "draw the icon");
    take(cycle.age == Age::Touched, "touch");
    take(replacesMap, "drop the cache");  // with the map whose place the new one takes
    take(cycle.publishesAtEnd, "publish");
    take(cycle.age == Age::RaisedThenTouched, "touch");
    return steps;
}

class UpdateSteps : public PluginTest, public testing::WithParamInterface<MapDescription> {
protected:
    void SetUp() override {
        pool_ = makePool();
        object_ = create(GetParam().key());
        steps_ = std::make_unique<Steps>(*object_, pool_);
    }
    void TearDown() override {
        steps_.reset();
        pool_ = nullptr;
        object_ = nullptr;
    }

    ObjectPtr object_;
    PoolPtr pool_;
    std::unique_ptr<Steps> steps_;
};

TEST_P(UpdateSteps, OfTheFirstTimeComeInTheirOrder) {
    forceUpdate(*object_, pool_);
    EXPECT_EQ(steps_->take(), stepsOf(GetParam(), true));
}

TEST_P(UpdateSteps, OfALaterTimeComeInTheirOrder) {
    update(*object_, pool_);
    steps_->take();
    forceUpdate(*object_, pool_);
    EXPECT_EQ(steps_->take(), stepsOf(GetParam(), false));
}

INSTANTIATE_TEST_SUITE_P(Maps, UpdateSteps, testing::ValuesIn(describedMaps()),
                         [](auto const& map) { return testName(map.param.name); });

}  // namespace
}  // namespace tests
