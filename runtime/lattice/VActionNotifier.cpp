#include "host/creators/VActionNotifier.hpp"

#include <algorithm>
#include <cstdio>
#include <mutex>
#include <vector>

namespace Orlo {

namespace {

struct Listeners {
    std::recursive_mutex mutex;  ///< a listener may cause further news
    std::vector<VActionNotifier*> all;
};

Listeners& listeners() {
    static auto* const instance = new Listeners;
    return *instance;
}

}  // namespace

VActionNotifier::VActionNotifier() {
    std::scoped_lock const lock(listeners().mutex);
    listeners().all.push_back(this);
}

VActionNotifier::~VActionNotifier() {
    std::scoped_lock const lock(listeners().mutex);
    std::erase(listeners().all, this);
}

void VActionNotifier::Warning(std::string const& text) {
    std::scoped_lock const lock(listeners().mutex);
    if (listeners().all.empty())
        std::fprintf(stderr, "warning: %s\n", text.c_str());
    for (VActionNotifier* const listener : listeners().all)
        listener->warned(text);
}

void VActionNotifier::VObjectCreation(ObjectPtr const& object, Nucleo::Intercube const& context,
                                      WeakPtr<VCreatorBase, VManagedObjectBase> const& creator) {
    std::scoped_lock const lock(listeners().mutex);
    for (VActionNotifier* const listener : listeners().all)
        listener->created(object, context, creator);
}

void VActionNotifier::warned(std::string const&) {}

void VActionNotifier::created(ObjectPtr const&, Nucleo::Intercube const&,
                              WeakPtr<VCreatorBase, VManagedObjectBase> const&) {}

}  // namespace Orlo
