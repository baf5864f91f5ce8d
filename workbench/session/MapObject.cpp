#include "workbench/session/MapObject.hpp"

#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/session/objects.hpp"
#include "workbench/session/parameters.hpp"

namespace workbench {

namespace {

void applySetting(Orlo::VObject& object, std::string const& setting) {
    std::size_t const sign = setting.find('=');
    if (sign == std::string::npos)
        throw CallError("the setting " + inQuotes(setting) + " is not of the form NAME=TEXT");
    setParameter(object, setting.substr(0, sign), setting.substr(sign + 1));
}

}  // namespace

MapObject::MapObject(Session const& session, std::string const& key,
                     std::vector<std::string> const& settings)
    : pool_(new Orlo::ValuePool("telmbench")) {
    Orlo::WeakCreatorPtr const entry = session.find(key);
    key_ = entry->keyname("/");
    object_ = create(entry);
    for (std::string const& setting : settings)
        applySetting(*object_, setting);
    map_ = update(*object_, pool_);
    if (!map_)
        throw WorkError("the entry " + inQuotes(key_) + " publishes no colour map");
}

}  // namespace workbench
