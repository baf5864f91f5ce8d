#include "workbench/session/objects.hpp"

#include <map>
#include <vector>

#include "runtime/lattice/Catalogue.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/nearest.hpp"
#include "workbench/session/entries.hpp"

namespace workbench {

namespace {

/// The keys whose names are like that of an unknown one, as the end of a
/// message. The folders do not count: most keys share one.
std::string keySuggestion(std::string const& unknown) {
    std::map<std::string, std::string> keys;
    std::vector<std::string> names;
    for (Orlo::WeakCreatorPtr const& creator : Orlo::catalogue()) {
        std::string const key = creator->keyname("/");
        names.push_back(nameIn(key));
        keys.emplace(nameIn(key), key);
    }
    std::string text;
    for (std::string const& name : nearest(nameIn(unknown), names))
        text += (text.empty() ? "; near it is " : " and ") + inQuotes(keys.at(name));
    return text.empty() ? "; a plug-in that provides it must be loaded" : text;
}

}  // namespace

Orlo::ObjectPtr create(std::string const& key, std::string const& name,
                       Orlo::PreferencesPtr const& preferences, Nucleo::Intercube const& context) {
    Orlo::WeakCreatorPtr const creator = Orlo::findCreator(key);
    if (!creator)
        throw CallError("the catalogue has no entry " + inQuotes(key) + keySuggestion(key));
    return creator->create(name, context, preferences);
}

void request(Orlo::VObject& object, Orlo::PoolPtr const& pool) {
    Orlo::VRequest request(pool);
    object.request(request, 0, nullptr, nullptr);
}

Orlo::ColormapPtr mapOf(Orlo::VObject const& object, Orlo::PoolPtr const& pool) {
    Orlo::ColormapPtr map;
    for (Orlo::SlotPtr const& slot : object.slots())
        if (!slot->isInput() && Orlo::readParameter(*slot->parameter(), pool, map) && map)
            return map;
    return {};
}

Orlo::ColormapPtr update(Orlo::VObject& object, Orlo::PoolPtr const& pool) {
    request(object, pool);
    return mapOf(object, pool);
}

}  // namespace workbench
