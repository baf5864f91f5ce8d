#include "workbench/session/objects.hpp"

#include <map>
#include <new>
#include <stdexcept>
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

/// Calls into a plug-in. What this throws is of its own code on Windows, also where
/// the type is of the C++ library, and may be caught only when that is unloaded: it
/// is said again by the host. The host's own errors pass.
template <class Call>
auto inOwnErrors(Call call) {
    try {
        return call();
    } catch (CallError const&) {
        throw;
    } catch (WorkError const&) {
        throw;
    } catch (std::bad_alloc const&) {
        throw std::bad_alloc();
    } catch (std::length_error const& error) {
        throw std::length_error(error.what());
    } catch (std::exception const& error) {
        throw std::runtime_error(error.what());
    }
}

}  // namespace

Orlo::ObjectPtr create(Orlo::WeakCreatorPtr const& entry, std::string const& name,
                       Orlo::PreferencesPtr const& preferences, Nucleo::Intercube const& context) {
    return inOwnErrors([&] { return entry->create(name, context, preferences); });
}

Orlo::ObjectPtr create(std::string const& key, std::string const& name,
                       Orlo::PreferencesPtr const& preferences, Nucleo::Intercube const& context) {
    Orlo::WeakCreatorPtr const creator = Orlo::findCreator(key);
    if (!creator)
        throw CallError("the catalogue has no entry " + inQuotes(key) + keySuggestion(key));
    return create(creator, name, preferences, context);
}

void request(Orlo::VObject& object, Orlo::PoolPtr const& pool) {
    inOwnErrors([&] {
        Orlo::VRequest request(pool);
        object.request(request, 0, nullptr, nullptr);
    });
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
