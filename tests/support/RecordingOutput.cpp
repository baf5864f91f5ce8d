#include "tests/support/RecordingOutput.hpp"

#include "runtime/vellum/ColormapValue.hpp"
#include "tests/support/objects.hpp"

namespace tests {

using namespace Orlo;

class RecordingOutput::Value : public ColormapValue {
public:
    explicit Value(Tincture const& object) : object_(object) {}

    bool setValue(ColormapPtr const& map) override {
        offers.push_back({map, map ? map->age() : 0, object_.iconCount(), map ? map->getMin() : -1,
                          map ? map->getMax() : -1,
                          map && (!map->getLabel().empty() || map->getExtra() != 0)});
        ColormapValue::setValue(map);
        return answer;
    }

    std::vector<Offer> offers;
    bool answer = true;

private:
    Tincture const& object_;
};

class RecordingOutput::Listener : public ValueNotifier {
public:
    explicit Listener(PoolPtr const& pool) : pool_(pool) {}

    void valueChanged(ValuePtr const&, PoolPtr const& pool, std::string const& member) override {
        if (pool == pool_ && member.empty())
            ++count;
    }

    int count = 0;

private:
    WeakPtr<ValuePool, ValuePool> pool_;
};

RecordingOutput::RecordingOutput(VObject& object, PoolPtr const& pool)
    : object_(tincture(object)),
      value_(new Value(object_)),
      listener_(new Listener(pool)),
      iconsBefore_(object_.iconCount()) {
    object_.output()->addShadow(pool);
    pool->createVariable(*object_.output(), value_);
    object_.output()->addNotifier(listener_);
}

RecordingOutput::~RecordingOutput() = default;

void RecordingOutput::place(ColormapPtr const& map) {
    value_->ColormapValue::setValue(map);
}

void RecordingOutput::answer(bool changed) {
    value_->answer = changed;
}

std::vector<Offer> const& RecordingOutput::offers() const {
    return value_->offers;
}

int RecordingOutput::notifications() const {
    return listener_->count;
}

unsigned RecordingOutput::icons() const {
    return object_.iconCount() - iconsBefore_;
}

ColormapPtr RecordingOutput::map() const {
    ColormapPtr map;
    value_->getValue(map);
    return map;
}

void RecordingOutput::clear() {
    value_->offers.clear();
    listener_->count = 0;
    iconsBefore_ = object_.iconCount();
}

}  // namespace tests
