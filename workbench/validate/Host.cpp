#include "workbench/validate/Host.hpp"

#include "runtime/vellum/ColormapValue.hpp"

namespace workbench::validate {

using namespace Orlo;

void withPlugin(Trial const& trial, std::function<void(Host& host)> const& work) {
    Host host(trial);
    inOwnWords("", [&] { work(host); });
}

void withEntries(Trial const& trial, std::function<void(WeakCreatorPtr const& entry)> const& work) {
    withPlugin(trial, [&](Host&) {
        for (WeakCreatorPtr const& entry : catalogue())
            inOwnWords(printable(entry->keyname("/")), [&] { work(entry); });
    });
}

void withMaps(
    Trial const& trial,
    std::function<void(WeakCreatorPtr const& entry, ObjectPtr const& object)> const& work) {
    withEntries(trial, [&](WeakCreatorPtr const& entry) {
        ObjectPtr const object = create(entry);
        if (!mapOutputsOf(*object).empty())
            work(entry, object);
    });
}

PoolPtr newPool() {
    return new ValuePool("judge");
}

bool forceUpdate(VObject& object, PoolPtr const& pool) {
    VRequest request(pool);
    return object.update(request, 0.0);
}

ColormapPtr updated(VObject& object, PoolPtr const& pool) {
    ColormapPtr const map = update(object, pool);
    require(bool(map), "an update leaves no map in the output");
    return map;
}

std::vector<SlotPtr> inputsOf(VObject const& object) {
    std::vector<SlotPtr> found;
    for (SlotPtr const& slot : object.slots())
        if (slot->isInput())
            found.push_back(slot);
    return found;
}

std::vector<SlotPtr> mapOutputsOf(VObject const& object) {
    std::vector<SlotPtr> found;
    for (SlotPtr const& slot : object.slots())
        if (!slot->isInput() && slot->parameter() && slot->parameter()->ownValue() &&
            slot->parameter()->ownValue()->type() == typeid(ColormapPtr))
            found.push_back(slot);
    return found;
}

}  // namespace workbench::validate
