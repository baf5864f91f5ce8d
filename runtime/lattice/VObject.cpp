#include "host/object/VObject.hpp"

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

VObject::VObject(std::string const& name, int, PreferencesPtr const& preferences)
    : VManagedDomainObject<VObject>(name),
      wishes_(preferences),
      state_(std::make_unique<State>()) {}

VObject::~VObject() = default;

bool VObject::request(VRequest& request, double precision,
                      WeakPtr<VManagedObjectBase, VManagedObjectBase> const&,
                      WeakPtr<VManagedObjectBase, VManagedObjectBase> const& consumer) {
    if (!state_->answersRequests)
        return false;
    if (hasRequest(request))
        return true;
    rememberRequest(request);  // first, so that a request ends in a ring of objects
    for (SlotPtr const& slot : slots())
        if (ObjectPtr const provider(slot->provider()); provider && !ignoreInput(slot))
            provider->request(request, precision, this, consumer);
    std::scoped_lock const lock(state_->update);
    return unsychronized_update(request, precision);
}

bool VObject::must_update(VRequest const& request, double) const {
    return anyChanged(request.pool());
}

bool VObject::unsychronized_update(VRequest& request, double precision) {
    Nucleo::Ageable::Stamp const began = Nucleo::Ageable::now();
    if (!must_update(request, precision) && !anyChanged(request.pool()))
        return true;
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
    ObjectPtr const twin = maker->create(Name(), Nucleo::Intercube(), wishes_);
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
