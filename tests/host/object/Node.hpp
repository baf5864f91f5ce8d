/// A small object to try the object model on.
#pragma once

#include <functional>

#include "host/object/VObject.hpp"
#include "host/values/TypedSlot.hpp"

namespace tests {

/// Has an input "in" and an output "out", both doubles, and doubles the one
/// into the other. It counts its updates.
class Node : public Orlo::VObject {
public:
    explicit Node(std::string const& name = "node", int kind = 0) : VObject(name, kind, nullptr) {
        Orlo::registerValueTypes<double>();
        Orlo::StrongPtr<Orlo::VValue<double>, Orlo::VValueBase> const value =
            new Orlo::VValue<double>(0.0);
        output_ = new Orlo::VValueParameter<double>(value, "out");
        output_->setCreator(this);
        Orlo::VSlotGlobals::addParameter(this, "out", 0, output_, false);
    }

    bool update(Orlo::VRequest& request, double precision) override {
        ++updates;
        lastPrecision = precision;
        if (atUpdate)
            atUpdate();
        double number = 0;
        in.read(request.pool(), number);
        Orlo::ValuePtr const value = Orlo::valueInPool(*output_, request.pool(), true);
        Orlo::StrongPtr<Orlo::VTypedValueBase<double>, Orlo::VValueBase>(value)->setValue(2 *
                                                                                          number);
        value->ageable()->touch();
        return succeeds;
    }

    bool ignoreInput(Orlo::SlotPtr const&) const override { return ignores; }

    double result(Orlo::PoolPtr const& pool) const {
        double number = -1;
        Orlo::readParameter(*output_, pool, number);
        return number;
    }

    Orlo::TypedSlot<double> in{this, "in", 1.0, 0};
    int updates = 0;
    double lastPrecision = 0;
    bool succeeds = true;
    bool ignores = false;
    std::function<void()> atUpdate;

private:
    Orlo::ParameterPtr output_;
};

using NodePtr = Orlo::StrongPtr<Node, Orlo::VManagedObjectBase>;

}  // namespace tests
