#include "workbench/serve/World.hpp"

#include <algorithm>

#include "runtime/vellum/ColormapValue.hpp"

namespace workbench {

World::World(SessionOptions const& options, Script const& script)
    : session_(std::in_place, options), network_(networkOf(script)) {}

World::World(Script const& script) : network_(networkOf(script)) {}

std::unique_ptr<Network> networkOf(Script const& script) {
    auto network = std::make_unique<Network>();
    network->execute(script);
    return network;
}

bool isMap(Orlo::VObject const& object) {
    return std::ranges::any_of(object.slots(), [](Orlo::SlotPtr const& slot) {
        Orlo::ValuePtr const value = slot->ownParameter()->DefaultValue();
        return !slot->isInput() && value && value->type() == typeid(Orlo::ColormapPtr);
    });
}

}  // namespace workbench
