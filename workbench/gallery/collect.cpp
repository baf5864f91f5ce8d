#include "workbench/gallery/collect.hpp"

#include "workbench/common/errors.hpp"
#include "workbench/gallery/page.hpp"
#include "workbench/session/MapObject.hpp"
#include "workbench/session/entries.hpp"

namespace workbench {

namespace {

using Orlo::VCreatorBase;
using Remark = std::function<void(std::string const&)>;

std::vector<Variant> variantsOf(Session const& session, std::string const& key,
                                Remark const& remark) {
    std::vector<Variant> variants;
    for (Preset const& preset : presetsFor(key)) {
        try {
            MapObject const subject(session, key, preset.assignments);
            variants.push_back({preset, sample(subject.map(), RampColumns)});
        } catch (CallError const& error) {
            remark(key + ": '" + preset.caption + "' is left out: " + error.what());
        }
    }
    return variants;
}

Exhibit exhibitOf(Session const& session, VCreatorBase const& entry, Remark const& remark) {
    std::string const key = entry.keyname("/");
    MapObject const subject(session, key);
    return {.key = key,
            .description = entry.get(VCreatorBase::Description),
            .source = entry.get(VCreatorBase::Source),
            .tags = tagsOf(entry),
            .size = subject.map().getSize(),
            .parameters = parametersOf(subject.object()),
            .samples = sample(subject.map(), RampColumns),
            .variants = variantsOf(session, key, remark)};
}

}  // namespace

std::vector<Exhibit> exhibitsOf(Session const& session, Remark const& remark) {
    std::vector<Exhibit> exhibits;
    for (auto const& entry : session.entries())
        exhibits.push_back(exhibitOf(session, *entry, remark));
    return exhibits;
}

}  // namespace workbench
