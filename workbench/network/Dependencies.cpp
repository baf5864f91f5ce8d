#include "workbench/network/Dependencies.hpp"

#include <algorithm>
#include <unordered_set>

namespace workbench {

using Orlo::VObject;

/// Goes from one object to all that can be reached in one direction, an object a
/// step. A list on the heap, since a chain may be longer than the stack is deep.
class Dependencies::Search {
public:
    Search(Dependencies const& all, Objects Links::*direction, VObject const& start)
        : all_(all), direction_(direction), waiting_{&start}, seen_{&start} {}

    bool isOver() const { return waiting_.empty(); }
    bool hasSeen(VObject const& object) const { return seen_.contains(&object); }

    void step() {
        auto const links = all_.links_.find(waiting_.back());
        waiting_.pop_back();
        if (links == all_.links_.end())
            return;
        for (VObject const* const next : links->second.*direction_)
            if (seen_.insert(next).second)
                waiting_.push_back(next);
    }

private:
    Dependencies const& all_;
    Objects Links::*direction_;
    Objects waiting_;
    std::unordered_set<VObject const*> seen_;
};

void Dependencies::read(VObject const& object) {
    for (VObject const* const provider : links_[&object].providers)
        std::erase(links_[provider].consumers, &object);
    Objects providers;
    for (Orlo::SlotPtr const& slot : object.slots())
        if (Orlo::ObjectPtr const provider(slot->provider()); provider) {
            providers.push_back(provider.get());
            links_[provider.get()].consumers.push_back(&object);
        }
    links_[&object].providers = providers;
}

void Dependencies::forget(VObject const& object) {
    auto const found = links_.find(&object);
    if (found == links_.end())
        return;
    Links const links = std::move(found->second);
    links_.erase(found);
    for (VObject const* const provider : links.providers)
        std::erase(links_[provider].consumers, &object);
    for (VObject const* const consumer : links.consumers)
        std::erase(links_[consumer].providers, &object);
}

bool Dependencies::isRead(VObject const& object, Orlo::VParameter const& parameter) const {
    auto const links = links_.find(&object);
    return links != links_.end() &&
           std::ranges::any_of(links->second.consumers, [&](VObject const* consumer) {
               return std::ranges::any_of(consumer->slots(), [&](Orlo::SlotPtr const& slot) {
                   return slot->provider() && slot->parameter().get() == &parameter;
               });
           });
}

/// From both ends in turns: whichever is over first decides, so that a chain that
/// grows at either end costs a step for each connection.
bool Dependencies::dependsOn(VObject const& consumer, VObject const& provider) const {
    Search up(*this, &Links::providers, consumer);
    Search down(*this, &Links::consumers, provider);
    while (!up.isOver() && !down.isOver()) {
        if (up.hasSeen(provider) || down.hasSeen(consumer))
            return true;
        up.step();
        down.step();
    }
    return up.hasSeen(provider) || down.hasSeen(consumer);
}

}  // namespace workbench
