/// News for the host and its user.
#pragma once

#include <string>

#include "host/object/VObject.hpp"
#include "host/pointers/threads.hpp"

namespace Orlo {

/// Tells listeners what happens. A listener is one object of a derived class;
/// it hears from its construction to its destruction.
///
/// Threads: news may come from any thread; the listeners are called one at a
/// time. While it hears, a listener may make and destroy listeners, itself
/// included: a new one hears the next news, a destroyed one nothing more.
class LATTICE_API VActionNotifier {
public:
    VActionNotifier();
    VActionNotifier(VActionNotifier const&) = delete;
    VActionNotifier& operator=(VActionNotifier const&) = delete;
    virtual ~VActionNotifier();

    /// Shows a warning to the user; without any listener, on standard error.
    static void Warning(std::string const& text);
    /// An object was made.
    static void VObjectCreation(ObjectPtr const& object, Nucleo::Intercube const& context,
                                WeakPtr<VCreatorBase, VManagedObjectBase> const& creator);

    /// A warning was given. [any]
    virtual void warned(std::string const& text);
    /// An object was made. [any]
    virtual void created(ObjectPtr const& object, Nucleo::Intercube const& context,
                         WeakPtr<VCreatorBase, VManagedObjectBase> const& creator);
};

}  // namespace Orlo
