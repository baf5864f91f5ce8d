#include "host/object/VObject.hpp"

#include <utility>
#include <vector>

#include "host/creators/VCreatorBase.hpp"

namespace Orlo {

VStateCreatorBase::~VStateCreatorBase() = default;

StrongPtr<Nucleo::InterfaceBase, Nucleo::InterfaceBase> VStateCreatorBase::newState() const {
    return nullptr;
}

VSaveable::~VSaveable() = default;
VScriptable::~VScriptable() = default;

VTraceRequestID::~VTraceRequestID() = default;

bool VTraceRequestID::hasRequest(VRequest const& request) const {
    return last_ == request.number();
}

void VTraceRequestID::rememberRequest(VRequest const& request) {
    last_ = request.number();
}

VAcceptInfo::VAcceptInfo(std::string nameOfSlot) : slotName(std::move(nameOfSlot)) {}
VAcceptInfo::~VAcceptInfo() = default;

struct VObject::State {
    WeakCreatorPtr creator;
    std::atomic<bool> answersRequests{false};
    std::mutex update;  ///< one update of an object at a time
};

VObject::VObject(std::string const& name, int kind, PreferencesPtr const& preferences)
    : VManagedDomainObject<VObject>(name),
      kind_(kind),
      preferences_(preferences),
      state_(std::make_unique<State>()) {}

VObject::~VObject() {
    if (VCreatorBase const* const maker = state_->creator.get())  // which nobody need hold
        maker->removeInstance(*this);
}

bool VObject::request(VRequest& request, double precision, Asker const&, Asker const& consumer) {
    bool const myTurn = std::exchange(request.due_, nullptr) == this;
    if (!state_->answersRequests)
        return false;
    if (!myTurn && hasRequest(request))
        return true;
    if (!myTurn)
        requestProviders(request, precision, consumer);
    std::scoped_lock const lock(state_->update);
    return unsychronized_update(request, precision);
}

/// The provider of the next input, from the given one on, that the request has
/// still to reach; empty behind the last one.
ObjectPtr VObject::nextProvider(VRequest const& request, std::size_t& slotIndex) const {
    std::vector<SlotPtr> const& all = slots();
    while (slotIndex < all.size()) {
        SlotPtr const& slot = all[slotIndex++];
        if (!slot->isConnected())
            continue;
        ObjectPtr const provider(slot->provider());
        if (provider && !ignoreInput(slot) && provider->state_->answersRequests &&
            !provider->hasRequest(request))
            return provider;
    }
    return nullptr;
}

/// Walks from this object up to everything that it depends on and has each object
/// updated behind its own providers. The path is a list on the heap, since a chain
/// may be longer than a thread's stack is deep. An object is marked when the walk
/// reaches it, so that the walk ends in a ring of objects.
void VObject::requestProviders(VRequest& request, double precision, Asker const& consumer) {
    struct Step {
        ObjectPtr held;
        VObject* object;
        std::size_t slotIndex = 0;
    };
    rememberRequest(request);
    Step self{nullptr, this};
    std::vector<Step> path;  // from a provider of this object on: most have none
    while (true) {
        Step& last = path.empty() ? self : path.back();
        if (ObjectPtr const provider = last.object->nextProvider(request, last.slotIndex)) {
            provider->rememberRequest(request);
            path.push_back({provider, provider.get()});
            continue;
        }
        if (path.empty())
            return;
        ObjectPtr const due = last.held;
        path.pop_back();
        request.due_ = due.get();
        due->request(request, precision, path.empty() ? this : path.back().object, consumer);
    }
}

bool VObject::must_update(VRequest const& request, double) const {
    return request.unchanged_ != this && anyChanged(request.pool());
}

bool VObject::unsychronized_update(VRequest& request, double precision) {
    Nucleo::Ageable::Stamp const began = Nucleo::Ageable::now();
    if (!anyChanged(request.pool())) {
        request.unchanged_ = this;  // so that `must_update` need not look at all inputs again
        bool const must = must_update(request, precision);
        request.unchanged_ = nullptr;
        if (!must)
            return true;
    }
    bool const done = update(request, precision);
    if (done)
        updateFinished(request.pool(), began);
    return done;
}

std::string VObject::gimp_icon() const {
    return {};
}
std::string VObject::xpm_icon() const {
    return {};
}
std::string VObject::qt_icon() const {
    return {};
}

std::string VObject::help(HelpType) const {
    return {};
}

ObjectPtr VObject::copy() const {
    StrongPtr<VCreatorBase, VManagedObjectBase> const maker(state_->creator);
    if (!maker)
        return nullptr;
    ObjectPtr const twin = maker->create(Name(), Nucleo::Intercube(), preferences_);
    for (SlotPtr const& mine : slots())
        if (SlotPtr const theirs = twin->slot(mine->name()); theirs && mine->isInput())
            theirs->ownParameter()->setGlobalValue(mine->ownParameter()->ownValue(), nullptr);
    return twin;
}

std::string VObject::type_key() const {
    return state_->creator ? state_->creator->keyname("/") : std::string();
}

std::string VObject::CreateParameterName(std::string const& wish) const {
    return wish;
}

void VObject::InputCreation(ParameterPtr const&, ObjectPtr const&, ParameterPtr const&) {}

void VObject::setCreator(WeakCreatorPtr const& creator) {
    state_->creator = creator;
    if (creator)
        creator->addInstance(WeakObjectPtr(this));
}

WeakCreatorPtr VObject::creator() const {
    return state_->creator;
}

void VObject::enableRequestProcessing() {
    state_->answersRequests = true;
}

std::string VObject::createChildname(std::string const&) {
    return {};
}

std::string VObject::makeChildname(VCreatorBase const& creator, std::string const& parentName) {
    return parentName.empty() ? creator.name() : creator.name() + "_for_" + parentName;
}

AcceptList VObject::accept(ObjectPtr const& object) {
    AcceptList ways;
    for (SlotPtr const& slot : object->slots())
        if (slot->isInput())
            ways.emplace_back(new VAcceptInfo(slot->name()));
    return ways;
}

}  // namespace Orlo
