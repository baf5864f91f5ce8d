#include "workbench/nodes/Keeper.hpp"

#include "runtime/lattice/TypeRegistry.hpp"
#include "workbench/nodes/Port.hpp"
#include "workbench/nodes/values.hpp"

namespace workbench {

namespace {

/// The presence of an object, where nothing else of it matters.
struct Presence {
    static constexpr char const* Description = "An Object.";
};

using PresencePtr = std::shared_ptr<Presence const>;

}  // namespace

SceneObject::SceneObject(std::string const& name, int kind, Orlo::PreferencesPtr const& preferences)
    : VObject(name, kind, preferences) {
    registerSceneTypes();
}

Orlo::SlotPtr SceneObject::makeInput(std::string const&) {
    return nullptr;
}

bool SceneObject::update(Orlo::VRequest&, double) {
    return true;
}

bool SceneObject::allowParameterReplacement(Orlo::SlotPtr const& slot,
                                            Orlo::ParameterPtr const& replacement) const {
    return slot->ownParameter()->DefaultValue()->type() == typeid(PresencePtr) ||
           VObject::allowParameterReplacement(slot, replacement);
}

Orlo::SlotPtr SceneObject::makeAnyInput(std::string const& name) {
    return Input<PresencePtr>(this, name).slot();
}

HostObject::HostObject(std::string const& name) : SceneObject(name, 0, nullptr) {
    enableRequestProcessing();
}

Orlo::SlotPtr HostObject::makeInput(std::string const& name) {
    return makeAnyInput(name);
}

void HostObject::makePresence() {
    Output<PresencePtr>(this, "::object");
}

Keeper::Keeper(std::string const& name) : HostObject(name) {
    makePresence();
}

bool keepsAll(Orlo::VObject const& object) {
    return dynamic_cast<SceneObject const*>(&object) != nullptr;
}

Orlo::SlotPtr addKept(Orlo::VObject& object, std::string const& name, std::string const& text) {
    if (Orlo::SlotPtr const present = object.slot(name))
        return present->isInput() ? present : Orlo::SlotPtr();
    if (!keepsAll(object))
        return nullptr;
    bool ok = false;
    return Orlo::findSlotCreator(inferType(text))->create(&object, name, text, ok, 0);
}

Orlo::SlotPtr addInput(Orlo::VObject& object, std::string const& name) {
    if (Orlo::SlotPtr const present = object.slot(name))
        return present->isInput() ? present : Orlo::SlotPtr();
    auto* const taker = dynamic_cast<SceneObject*>(&object);
    return taker != nullptr ? taker->makeInput(name) : Orlo::SlotPtr();
}

}  // namespace workbench
