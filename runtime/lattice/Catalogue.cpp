#include "runtime/lattice/Catalogue.hpp"

#include <algorithm>
#include <map>
#include <mutex>
#include <typeindex>

#include "host/values/Vprintf.hpp"

namespace Orlo {

namespace {

/// Never destroyed: a plug-in that is torn down at process exit still finds it.
struct Registry {
    std::mutex mutex;
    std::vector<WeakCreatorPtr> creators;
    std::map<std::type_index, std::vector<WeakInputCreatorPtr>> inputs;
};

Registry& registry() {
    static auto* const instance = new Registry;
    return *instance;
}

void enter(WeakCreatorPtr const& creator) {
    std::scoped_lock const lock(registry().mutex);
    registry().creators.push_back(creator);
}

std::string keyOf(WeakInputCreatorPtr const& creator) {
    WeakCreatorPtr const entry(creator);
    return entry ? entry->keyname("/") : std::string();
}

}  // namespace

std::vector<WeakCreatorPtr> catalogue() {
    std::scoped_lock const lock(registry().mutex);
    return registry().creators;
}

WeakCreatorPtr findCreator(std::string const& key) {
    std::scoped_lock const lock(registry().mutex);
    for (WeakCreatorPtr const& creator : registry().creators)
        if (creator->keyname("/") == key)
            return creator;
    return nullptr;
}

std::vector<WeakInputCreatorPtr> inputCreators(std::type_info const& type) {
    std::scoped_lock const lock(registry().mutex);
    auto const found = registry().inputs.find(type);
    return found != registry().inputs.end() ? found->second : std::vector<WeakInputCreatorPtr>();
}

bool registerVInput(std::type_info const& type, WeakInputCreatorPtr const& creator) {
    std::scoped_lock const lock(registry().mutex);
    auto& sources = registry().inputs[type];
    std::string const key = keyOf(creator);
    if (std::ranges::any_of(sources, [&](auto const& each) { return keyOf(each) == key; }))
        return false;
    sources.push_back(creator);
    return true;
}

void unregisterVInput(std::type_info const& type, WeakInputCreatorPtr const& creator) {
    std::scoped_lock const lock(registry().mutex);
    auto const found = registry().inputs.find(type);
    if (found == registry().inputs.end())
        return;
    std::erase_if(found->second, [&](auto const& each) { return each == creator; });
    if (found->second.empty())
        registry().inputs.erase(found);
}

VInputCreatorBase::VInputCreatorBase() = default;
VInputCreatorBase::~VInputCreatorBase() = default;

struct VCreatorBase::State {
    std::mutex mutex;
    std::vector<WeakObjectPtr> instances;
};

VCreatorBase::VCreatorBase(VCreatorProperties const& properties, int order,
                           PreferencesPtr const& preferences, bool hidden, char const*)
    : VCreatorProperties(properties),
      order_(order),
      hidden_(hidden),
      wishes_(preferences),
      state_(std::make_unique<State>()) {
    setName(name());
    enter(WeakCreatorPtr(this));
}

VCreatorBase::VCreatorBase(std::string const& name, int order, PreferencesPtr const& preferences,
                           bool hidden, char const* token)
    : VCreatorBase(VCreatorProperties(NameIs(name)), order, preferences, hidden, token) {}

VCreatorBase::~VCreatorBase() {
    Vprintf(100, "VCreatorBase::~VCreatorBase(%s,%d)\n", keyname("/").c_str(), order_);
    std::scoped_lock const lock(registry().mutex);
    std::erase_if(registry().creators,
                  [this](auto const& each) { return each.controlBlock() == controlBlock(); });
}

std::string VCreatorBase::createChildname(WeakObjectPtr const& parent,
                                          StrongPtr<VAcceptInfo, VAcceptInfo> const& input) const {
    std::string const base = createChildname(parent ? parent->Name() : std::string());
    return input ? base + "_" + input->slotName : base;
}

void VCreatorBase::addInstance(WeakObjectPtr const& object) const {
    std::scoped_lock const lock(state_->mutex);
    std::erase_if(state_->instances, [](auto const& each) { return !each; });
    state_->instances.push_back(object);
}

std::vector<WeakObjectPtr> VCreatorBase::instances() const {
    std::scoped_lock const lock(state_->mutex);
    std::vector<WeakObjectPtr> alive;
    for (WeakObjectPtr const& object : state_->instances)
        if (object)
            alive.push_back(object);
    return alive;
}

void VCreatorBase::deleteAllInstances(std::type_info const&) const {
    for (WeakObjectPtr const& object : instances())
        delete object.get();
}

}  // namespace Orlo
