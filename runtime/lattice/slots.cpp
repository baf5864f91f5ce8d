/// Slots, their containers, and the connections between them.
#include <algorithm>
#include <atomic>
#include <cstdio>
#include <mutex>
#include <set>

#include "host/object/VObject.hpp"
#include "host/pointers/Typename.hpp"
#include "host/values/VSlot.hpp"

namespace Orlo {

namespace {

/// All slots that stand connected, so that a provider which goes can be taken
/// out of them. Never destroyed, as objects may die after this library's
/// statics.
struct Connections {
    std::mutex mutex;
    std::set<VSlot*> slots;
};

Connections& connections() {
    static auto* const instance = new Connections;
    return *instance;
}

}  // namespace

// --- VSlot

VSlot::VSlot(std::string const& name, int expertLevel, ParameterPtr const& parameter, bool input)
    : slotName_(name), level_(expertLevel), input_(input), own_(parameter), current_(parameter) {}

VSlot::~VSlot() {
    disconnect();
}

void VSlot::connect(ParameterPtr const& parameter,
                    WeakPtr<VManagedObjectBase, VManagedObjectBase> const& provider) {
    std::scoped_lock const lock(connections().mutex);
    current_ = parameter;
    source_ = provider;
    connected_.touch();
    connections().slots.insert(this);
}

void VSlot::disconnect() {
    std::scoped_lock const lock(connections().mutex);
    if (connections().slots.erase(this) == 0)
        return;
    current_ = own_;
    source_ = nullptr;
    connected_.touch();
}

Nucleo::Ageable::Stamp VSlot::age(PoolPtr const& pool) const {
    ValuePtr const value = valueInPool(*current_, pool, false);
    Nucleo::Ageable const* const stamp =
        value ? static_cast<VValueBase const&>(*value).ageable() : nullptr;
    return std::max(connected_.age(), stamp != nullptr ? stamp->age() : 0);
}

// --- VSlotGlobals

VSlotContainer* VSlotGlobals::containerOf(VObject* object) {
    return object;
}

SlotPtr VSlotGlobals::addParameter(VSlotContainer* container, std::string const& name,
                                   int expertLevel, ParameterPtr const& parameter, bool input) {
    SlotPtr const slot = new VSlot(name, expertLevel, parameter, input);
    if (container != nullptr)
        container->addSlot(slot);
    return slot;
}

void VSlotGlobals::assertionFail(VSlotContainer*, std::string const& name,
                                 std::type_info const& type) {
    std::fprintf(stderr, "slot '%s' of type %s is made without an object\n", name.c_str(),
                 Nucleo::Typename(type).c_str());
}

// --- VSlotContainer

struct VSlotContainer::State {
    struct Finished {
        WeakPtr<ValuePool, ValuePool> pool;
        Nucleo::Ageable::Stamp began;
    };

    std::uint64_t number;
    std::vector<SlotPtr> slots;
    mutable std::mutex mutex;  ///< guards `finished`
    std::vector<Finished> finished;

    /// The entry of a pool, or none.
    Finished const* find(PoolPtr const& pool) const {
        auto const found =
            std::ranges::find_if(finished, [&](Finished const& each) { return each.pool == pool; });
        return found != finished.end() ? &*found : nullptr;
    }
};

VConnectionValidatorList::~VConnectionValidatorList() = default;
ValueCacheable::~ValueCacheable() = default;

VSlotContainer::VSlotContainer() : state_(std::make_unique<State>()) {
    static std::atomic<std::uint64_t> count{0};
    state_->number = ++count;
}

VSlotContainer::~VSlotContainer() {
    std::vector<StrongPtr<VSlot, VManagedObjectBase>> consumers;
    {
        std::scoped_lock const lock(connections().mutex);
        for (VSlot* const slot : connections().slots)
            if (slot->provider().controlBlock() == controlBlock())
                consumers.emplace_back(slot);
    }
    for (auto const& slot : consumers)
        if (slot)
            slot->disconnect();
}

std::vector<SlotPtr> const& VSlotContainer::slots() const noexcept {
    return state_->slots;
}

SlotPtr VSlotContainer::slot(std::string const& name) const {
    auto const found = std::ranges::find_if(
        state_->slots, [&](SlotPtr const& each) { return each->name() == name; });
    return found != state_->slots.end() ? *found : SlotPtr();
}

void VSlotContainer::addSlot(SlotPtr const& slot) {
    for (SlotPtr& each : state_->slots)
        if (each->name() == slot->name()) {
            each = slot;
            return;
        }
    state_->slots.push_back(slot);
}

Nucleo::Ageable::Stamp VSlotContainer::age(PoolPtr const& pool) const {
    Nucleo::Ageable::Stamp latest = 0;
    for (SlotPtr const& slot : state_->slots)
        if (slot->isInput())
            latest = std::max(latest, slot->age(pool));
    return latest;
}

bool VSlotContainer::hasChanged(SlotPtr const& slot, PoolPtr const& pool) const {
    std::scoped_lock const lock(state_->mutex);
    auto const* const last = state_->find(pool);
    return last == nullptr || slot->age(pool) > last->began;
}

bool VSlotContainer::anyChanged(PoolPtr const& pool) const {
    std::scoped_lock const lock(state_->mutex);
    auto const* const last = state_->find(pool);
    return last == nullptr || age(pool) > last->began;
}

void VSlotContainer::updateFinished(PoolPtr const& pool, Nucleo::Ageable::Stamp began) {
    std::scoped_lock const lock(state_->mutex);
    std::erase_if(state_->finished,
                  [&](State::Finished const& each) { return !each.pool || each.pool == pool; });
    state_->finished.push_back({pool, began});
}

std::uint64_t VSlotContainer::number() const noexcept {
    return state_->number;
}

void VParameter::setCreator(VSlotContainer* owner) {
    if (owner != nullptr)
        fullName_ = std::to_string(owner->number()) + "." + shortName_;
}

// --- VConnectable

VConnectable::~VConnectable() = default;

void VConnectable::setup(VSlotSet const&) {}

bool VConnectable::allowParameterReplacement(SlotPtr const& slot,
                                             ParameterPtr const& replacement) const {
    ValuePtr const ours = slot->ownParameter()->DefaultValue();
    ValuePtr const theirs = replacement->DefaultValue();
    return slot->isInput() && ours && theirs && ours->type() == theirs->type();
}

bool VConnectable::connectSlots(SlotPtr const& input, VConnectable& provider,
                                SlotPtr const& output) {
    if (!allowParameterReplacement(input, output->parameter()))
        return false;
    input->connect(output->parameter(), WeakPtr<VManagedObjectBase, VManagedObjectBase>(&provider));
    adjustConnections();
    return true;
}

bool VConnectable::ignoreInput(SlotPtr const&) const {
    return false;
}

bool VConnectable::implements(std::type_info const&) const {
    return false;
}

StrongPtr<VManagedObjectBase, VManagedObjectBase> VConnectable::getImplementation(
    std::type_info const&) {
    return nullptr;
}

void VConnectable::iterateOutputs(std::function<void(SlotPtr const&)> const& visit) const {
    for (SlotPtr const& slot : slots())
        if (!slot->isInput())
            visit(slot);
}

void VConnectable::CreatedFilteredConnection(SlotPtr const&) {}

void VConnectable::adjustConnections() {}

}  // namespace Orlo
