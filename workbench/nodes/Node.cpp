#include "workbench/nodes/Node.hpp"

#include "host/pointers/Typename.hpp"
#include "runtime/lattice/TypeRegistry.hpp"
#include "workbench/nodes/Port.hpp"
#include "workbench/nodes/values.hpp"
#include "workbench/session/parameters.hpp"

namespace workbench {

Node::Node(std::string const& name, int kind, Orlo::PreferencesPtr const& preferences)
    : VObject(name, kind, preferences) {
    registerNodeTypes();
}

Orlo::SlotPtr Node::makeInput(std::string const&) {
    return nullptr;
}

bool Node::update(Orlo::VRequest&, double) {
    return true;
}

bool Node::allowParameterReplacement(Orlo::SlotPtr const& slot,
                                     Orlo::ParameterPtr const& replacement) const {
    return slot->ownParameter()->DefaultValue()->type() == typeid(PresencePtr) ||
           VObject::allowParameterReplacement(slot, replacement);
}

Orlo::SlotPtr Node::makeAnyInput(std::string const& name) {
    return Input<PresencePtr>(this, name).slot();
}

bool keepsAll(Orlo::VObject const& object) {
    return dynamic_cast<Node const*>(&object) != nullptr;
}

Orlo::SlotPtr addKept(Orlo::VObject& object, std::string const& name, std::string const& text) {
    if (Orlo::SlotPtr const present = object.slot(name))
        return present->isInput() ? present : Orlo::SlotPtr();
    if (!keepsAll(object))
        return nullptr;
    bool ok = false;
    return Orlo::findSlotCreator(inferType(text))->create(&object, name, text, ok, 0);
}

void keepAsText(Orlo::VObject& object, std::string const& name,
                std::vector<Orlo::PoolPtr> const& pools) {
    std::string ownText;
    std::vector<std::pair<Orlo::PoolPtr, std::string>> texts;
    {
        Orlo::ParameterPtr const before = object.slot(name)->ownParameter();
        ownText = before->ownValue()->text();
        for (Orlo::PoolPtr const& pool : pools)
            if (Orlo::ValuePtr const value = before->getLocalValue(pool, "", false))
                texts.emplace_back(pool, value->text());
    }  // the values in the pools go with the parameter
    bool ok = false;
    Orlo::findSlotCreator(Nucleo::Typename(typeid(std::string)))
        ->create(&object, name, ownText, ok, 0);
    for (auto const& [pool, text] : texts)
        setParameter(object, name, text, pool);
}

Orlo::SlotPtr addInput(Orlo::VObject& object, std::string const& name) {
    if (Orlo::SlotPtr const present = object.slot(name))
        return present->isInput() ? present : Orlo::SlotPtr();
    auto* const taker = dynamic_cast<Node*>(&object);
    return taker != nullptr ? taker->makeInput(name) : Orlo::SlotPtr();
}

}  // namespace workbench
