/// The nodes of the dataflow network.
#pragma once

#include <atomic>
#include <cstddef>
#include <list>
#include <memory>
#include <mutex>
#include <string>

#include "host/object/VConnectable.hpp"
#include "host/object/VManagedObject.hpp"
#include "host/object/VRequest.hpp"
#include "host/pointers/Interface.hpp"
#include "host/pointers/threads.hpp"

namespace Orlo {

class VCreatorBase;

/// Makes state objects per context; no object of a colour-map library uses it.
class LATTICE_API VStateCreatorBase {
public:
    virtual ~VStateCreatorBase();
    /// A new state: none. [any]
    virtual StrongPtr<Nucleo::InterfaceBase, Nucleo::InterfaceBase> newState() const;

protected:
    mutable std::mutex stateMutex;
};

/// Mark of what is saved with a network.
class LATTICE_API VSaveable {
public:
    ~VSaveable();
};

/// Mark of what scripts can name.
class LATTICE_API VScriptable {
public:
    virtual ~VScriptable();
};

/// Mark of what can be recognised by its inputs.
class VInputClassRecognition {};

/// Remembers which request came by last.
class LATTICE_API VTraceRequestID {
public:
    virtual ~VTraceRequestID();
    /// Whether the object's last request was this one. [any]
    virtual bool hasRequest(VRequest const& request) const;

protected:
    void rememberRequest(VRequest const& request);

private:
    std::atomic<std::uint64_t> last_{0};
};

/// Tells how an object would take another one as its input.
class LATTICE_API VAcceptInfo : public Nucleo::ReferenceBase<VAcceptInfo> {
public:
    explicit VAcceptInfo(std::string nameOfSlot);
    ~VAcceptInfo() override;

    std::string slotName;
};

using AcceptList = std::list<StrongPtr<VAcceptInfo, VAcceptInfo>>;

/// A node of the dataflow network: it reads its input slots, and updates its
/// outputs on request.
///
/// Owner: counted, and known to its creator, which deletes it at the latest
/// when its library goes. Threads: `request` may be called from any thread; the
/// host runs one update of an object at a time, with the providers' updates
/// done before. Errors: `update` has no failure but what it throws.
class LATTICE_API VObject : public virtual VManagedObjectBase,
                            public virtual VConnectable,
                            public virtual VStateCreatorBase,
                            public virtual VSaveable,
                            public VManagedDomainObject<VObject>,
                            public VScriptable,
                            public VInputClassRecognition,
                            public VTraceRequestID {
public:
    /// Which text `help` is asked for. Any other number means the short one.
    enum HelpType : int { ShortHelp = 0, HelpLink = 1, LongHelp = 2 };

    /// `kind` is 0 for every object of a colour-map library.
    VObject(std::string const& name, int kind, PreferencesPtr const& preferences);
    ~VObject() override;

    /// Brings the object up to date in the pool of the request: first all that it
    /// depends on, each object behind its own providers, then, if it must or if an
    /// input has changed since its last update there, itself. A chain of
    /// connections may be of any length. False if request processing is off. The
    /// weak pointers name who asks and for whom. [any]
    virtual bool request(VRequest& request, double precision,
                         WeakPtr<VManagedObjectBase, VManagedObjectBase> const& asker,
                         WeakPtr<VManagedObjectBase, VManagedObjectBase> const& consumer);
    /// Recomputes the outputs for the request's pool. Called by itself, not through
    /// `request`, it is not noted as finished: what has changed stays changed.
    /// [updater]
    virtual bool update(VRequest& request, double precision) = 0;
    /// Whether an update is due. Here: whether an input has changed since the
    /// object's last finished update in the pool, or there was none. An override
    /// may tell of other reasons alone, since a request asks for changed inputs
    /// whatever this says. [updater]
    virtual bool must_update(VRequest const& request, double precision) const;
    /// The part of `request` behind the providers and the lock. [updater]
    virtual bool unsychronized_update(VRequest& request, double precision);
    /// Pictures of the object: empty, or the text of an image file of the kind
    /// named. [host]
    virtual std::string gimp_icon() const;
    virtual std::string xpm_icon() const;
    virtual std::string qt_icon() const;
    /// A text about the object. [any]
    virtual std::string help(HelpType type) const;
    /// A new object of the same creator, with the same parameter values. Empty
    /// if the creator is gone. [host]
    virtual ObjectPtr copy() const;
    /// The catalogue key of the object, or empty. [any]
    virtual std::string type_key() const;
    /// A name for a new parameter made from a wish. [host]
    virtual std::string CreateParameterName(std::string const& wish) const;
    /// An input of the object was given a provider by the host. [host]
    virtual void InputCreation(ParameterPtr const& input, ObjectPtr const& provider,
                               ParameterPtr const& output);

    /// The merged words that the object was made with; may be empty.
    PreferencesPtr const& preferences() const noexcept { return preferences_; }
    /// The kind that the object was made with.
    int kind() const noexcept { return kind_; }

    /// Tells the object its creator and the creator its object.
    void setCreator(WeakPtr<VCreatorBase, VManagedObjectBase> const& creator);
    WeakPtr<VCreatorBase, VManagedObjectBase> creator() const;

    /// From now on the object answers requests.
    void enableRequestProcessing();

    /// A name for an object that is made as a child: empty, so that the creator
    /// makes one up.
    static std::string createChildname(std::string const& name);
    /// The creator's name, behind that of the parent.
    static std::string makeChildname(VCreatorBase const& creator, std::string const& parentName);
    /// The ways in which the object would take another: one for each input.
    static AcceptList accept(ObjectPtr const& object);

private:
    using Asker = WeakPtr<VManagedObjectBase, VManagedObjectBase>;

    ObjectPtr nextProvider(VRequest const& request, std::size_t& slotIndex) const;
    void requestProviders(VRequest& request, double precision, Asker const& consumer);

    struct State;
    int kind_;
    PreferencesPtr preferences_;
    std::unique_ptr<State> state_;
};

}  // namespace Orlo
