#include "host/creators/VActionNotifier.hpp"

#include <cstdint>
#include <cstdio>
#include <map>
#include <mutex>

namespace Orlo {

namespace {

struct Listeners {
    std::recursive_mutex mutex;                     ///< a listener may cause further news
    std::map<std::uint64_t, VActionNotifier*> all;  ///< by running number
    std::uint64_t last = 0;                         ///< the number given last

    /// Calls `tell` with each listener that stands now. A listener may add and
    /// remove others, and itself, meanwhile.
    template <class Tell>
    void each(Tell const& tell) {
        std::uint64_t const newest = last;
        for (auto next = all.begin(); next != all.end() && next->first <= newest;) {
            std::uint64_t const number = next->first;
            tell(*next->second);
            next = all.upper_bound(number);
        }
    }
};

Listeners& listeners() {
    static auto* const instance = new Listeners;
    return *instance;
}

}  // namespace

VActionNotifier::VActionNotifier() {
    std::scoped_lock const lock(listeners().mutex);
    listeners().all.emplace(++listeners().last, this);
}

VActionNotifier::~VActionNotifier() {
    std::scoped_lock const lock(listeners().mutex);
    std::erase_if(listeners().all, [this](auto const& each) { return each.second == this; });
}

void VActionNotifier::Warning(std::string const& text) {
    std::scoped_lock const lock(listeners().mutex);
    if (listeners().all.empty())
        std::fprintf(stderr, "warning: %s\n", text.c_str());
    listeners().each([&](VActionNotifier& listener) { listener.warned(text); });
}

void VActionNotifier::VObjectCreation(ObjectPtr const& object, Nucleo::Intercube const& context,
                                      WeakPtr<VCreatorBase, VManagedObjectBase> const& creator) {
    std::scoped_lock const lock(listeners().mutex);
    listeners().each(
        [&](VActionNotifier& listener) { listener.created(object, context, creator); });
}

void VActionNotifier::warned(std::string const&) {}

void VActionNotifier::created(ObjectPtr const&, Nucleo::Intercube const&,
                              WeakPtr<VCreatorBase, VManagedObjectBase> const&) {}

}  // namespace Orlo
