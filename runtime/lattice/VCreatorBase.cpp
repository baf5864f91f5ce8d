#include "host/creators/VCreatorBase.hpp"

#include <algorithm>
#include <cstdint>
#include <map>
#include <mutex>

#include "host/values/Vprintf.hpp"
#include "runtime/lattice/CreatorRegistry.hpp"

namespace Orlo {

namespace {

void enter(WeakCreatorPtr const& creator) {
    std::scoped_lock const lock(creatorRegistry().mutex);
    creatorRegistry().creators.push_back(creator);
}

std::string keyOf(WeakInputCreatorPtr const& creator) {
    WeakCreatorPtr const entry(creator);
    return entry ? entry->keyname("/") : std::string();
}

}  // namespace

bool registerVInput(std::type_info const& type, WeakInputCreatorPtr const& creator) {
    std::scoped_lock const lock(creatorRegistry().mutex);
    auto& sources = creatorRegistry().inputs[type];
    std::string const key = keyOf(creator);
    if (std::ranges::any_of(sources, [&](auto const& each) { return keyOf(each) == key; }))
        return false;
    sources.push_back(creator);
    return true;
}

void unregisterVInput(std::type_info const& type, WeakInputCreatorPtr const& creator) {
    std::scoped_lock const lock(creatorRegistry().mutex);
    auto const found = creatorRegistry().inputs.find(type);
    if (found == creatorRegistry().inputs.end())
        return;
    std::erase_if(found->second, [&](auto const& each) { return each == creator; });
    if (found->second.empty())
        creatorRegistry().inputs.erase(found);
}

VInputCreatorBase::VInputCreatorBase() = default;
VInputCreatorBase::~VInputCreatorBase() = default;

struct VCreatorBase::State {
    std::mutex mutex;
    std::map<std::uint64_t, WeakObjectPtr> instances;  ///< by their numbers
};

VCreatorBase::VCreatorBase(VCreatorProperties const& properties, int order,
                           PreferencesPtr const& preferences, bool hidden, char const* token)
    : VCreatorProperties(properties),
      order_(order),
      hidden_(hidden),
      preferences_(preferences),
      token_(token),
      state_(std::make_unique<State>()) {
    setName(name());
    enter(WeakCreatorPtr(this));
}

VCreatorBase::VCreatorBase(std::string const& name, int order, PreferencesPtr const& preferences,
                           bool hidden, char const* token)
    : VCreatorBase(VCreatorProperties(NameIs(name)), order, preferences, hidden, token) {}

VCreatorBase::~VCreatorBase() {
    Vprintf(100, "VCreatorBase::~VCreatorBase(%s,%d)\n", keyname("/").c_str(), order_);
    std::scoped_lock const lock(creatorRegistry().mutex);
    std::erase_if(creatorRegistry().creators,
                  [this](auto const& each) { return each.controlBlock() == controlBlock(); });
}

std::string VCreatorBase::createChildname(WeakObjectPtr const& parent,
                                          StrongPtr<VAcceptInfo, VAcceptInfo> const& input) const {
    std::string const base = createChildname(parent ? parent->Name() : std::string());
    return input ? base + "_" + input->slotName : base;
}

void VCreatorBase::addInstance(WeakObjectPtr const& object) const {
    std::scoped_lock const lock(state_->mutex);
    state_->instances.insert_or_assign(object->number(), object);
}

void VCreatorBase::removeInstance(VObject const& object) const {
    std::scoped_lock const lock(state_->mutex);
    state_->instances.erase(object.number());
}

std::vector<WeakObjectPtr> VCreatorBase::instances() const {
    std::scoped_lock const lock(state_->mutex);
    std::vector<WeakObjectPtr> alive;
    for (auto const& [number, object] : state_->instances)
        if (object)
            alive.push_back(object);
    return alive;
}

void VCreatorBase::deleteAllInstances(std::type_info const&) const {
    for (WeakObjectPtr const& object : instances())
        delete object.get();
}

}  // namespace Orlo
