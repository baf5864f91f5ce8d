/// What a studio shows.
#include <algorithm>

#include "runtime/lattice/PluginReports.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/nearest.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/gallery/page.hpp"
#include "workbench/nodes/Viewer.hpp"
#include "workbench/picture/png.hpp"
#include "workbench/picture/ramp.hpp"
#include "workbench/serve/Studio.hpp"
#include "workbench/serve/command.hpp"
#include "workbench/serve/xpm.hpp"
#include "workbench/session/MapObject.hpp"
#include "workbench/session/lookupLine.hpp"
#include "workbench/session/objects.hpp"

namespace workbench {

using std::string;

Refresh const& Studio::refresh() {
    if (!refresh_)
        refresh_ = bringUpToDate(network(), MaxPixelsASide);
    return *refresh_;
}

Json Studio::pluginsOf() const {
    Json all = Json::array();
    for (std::filesystem::path const& file : plugins_)
        all.push_back({{"file", textOf(file.filename())},
                       {"error", error_.empty() ? Json() : Json(error_)},
                       {"loaded", loaded_}});
    return all;
}

string const& Studio::state() {
    if (state_)
        return *state_;
    auto const labelOfLast = [](std::vector<Step> const& steps) {
        return steps.empty() ? Json() : Json(steps.back().label);
    };
    Refresh const& refreshed = refresh();
    Json state{{"revision", revision_},
               {"title", title_},
               {"undo", labelOfLast(undo_)},
               {"redo", labelOfLast(redo_)},
               {"plugins", pluginsOf()},
               {"complaints", complaintsOf(network())},
               {"viewers", viewersOf(network(), refreshed)},
               {"nodes", nodesOf(network(), refreshed)}};
    return state_.emplace(jsonText(state));
}

std::shared_ptr<Image const> Studio::picture(string const& viewer) {
    Orlo::ObjectPtr const object = network().findObject(viewer);
    if (!object || !isViewer(*object))
        throw NotThere("there is no viewer " + inQuotes(viewer) +
                       suggestion(viewer, network().viewers()));
    Drawn& drawn = drawn_[viewer];
    bool const isPresent = drawn.content == content_ || world_->session() == nullptr;
    if (drawn.image && isPresent)
        return drawn.image;
    Refresh const& refreshed = refresh();
    if (auto const failed = refreshed.viewers.find(viewer); failed != refreshed.viewers.end())
        throw WorkError(failed->second);
    drawn = {content_, std::make_shared<Image const>(render(*object, network().pool(viewer)))};
    Orlo::takePluginReports();  // of threads that drew, on Windows; they would become many
    return drawn.image;
}

string Studio::probe(string const& viewer, int x, int y) {
    std::shared_ptr<Image const> const image = picture(viewer);
    if (!image->contains(x, y))
        throw CallError("the picture of " + inQuotes(viewer) + " has no pixel " +
                        std::to_string(x) + ", " + std::to_string(y) + "; it has " +
                        std::to_string(image->width()) + " x " + std::to_string(image->height()));
    Orlo::PoolPtr const pool = network().pool(viewer);
    Orlo::ObjectPtr const object = network().object(viewer);
    Shown const shown = dynamic_cast<Viewer const&>(*object).shown(pool);
    Reading const reading = readPixel(shown, *image, x, y).value_or(Reading{});
    Json answer{{"pixel", {x, y}},   {"color", image->at(x, y)}, {"sample", nullptr},
                {"scalar", nullptr}, {"map", nullptr},           {"lookup", nullptr}};
    if (reading.sample)
        answer["sample"] = shortest(*reading.sample);
    if (reading.scalar)
        answer["scalar"] = shortest(*reading.scalar);
    if (reading.scalar && reading.map)
        answer["lookup"] = lookupLine(*reading.map, *reading.scalar);
    for (string const& name : network().names())
        if (reading.map && mapOf(*network().object(name), pool).get() == reading.map.get())
            answer["map"] = name;
    return jsonText(answer);
}

/// The present map of an object, with the values of the first viewer.
Orlo::ColormapPtr Studio::mapOfObject(string const& name) {
    Orlo::ObjectPtr const object = network().findObject(name);
    if (!object || !isMap(*object))
        throw NotThere("there is no map " + inQuotes(name));
    Orlo::ColormapPtr map = update(*object, firstPool(network()));
    if (!map)
        throw WorkError(inQuotes(name) + " publishes no colour map");
    return map;
}

string Studio::glass(string const& object) {
    return workbench::glass(sample(*mapOfObject(object), RampColumns), object);
}

string Studio::icon(string const& name) {
    Orlo::ObjectPtr const object = network().findObject(name);
    if (object)
        refresh();
    std::optional<Image> const icon = object ? readXpm(object->xpm_icon()) : std::nullopt;
    if (!icon)
        throw NotThere("there is no icon of " + inQuotes(name));
    return encodePng(*icon);
}

string const& Studio::catalogue() {
    if (!catalogue_)
        catalogue_ = jsonText(catalogueOf(world_->session()));
    return *catalogue_;
}

string Studio::ramp(string const& key) {
    constexpr std::size_t Columns = 256;
    constexpr int Height = 24;
    if (auto const known = ramps_.find(key); known != ramps_.end())
        return known->second;
    Session const* const session = world_->session();
    bool const isThere =
        session != nullptr &&
        std::ranges::any_of(session->entries(), [&](Orlo::WeakCreatorPtr const& entry) {
            return entry->keyname("/") == key;
        });
    if (!isThere)
        throw NotThere("no plug-in has an entry " + inQuotes(key));
    MapObject const subject(*session, key);
    return ramps_[key] = encodePng(rampOf(sample(subject.map(), Columns), Height));
}

string Studio::command() const {
    std::vector<string> plugins;
    for (std::filesystem::path const& plugin : setup_.session.plugins)
        plugins.push_back(textOf(plugin));
    auto const textAt = [this](ValuePath const& path) {
        Orlo::ObjectPtr const object = network().findObject(path.object);
        Orlo::SlotPtr const slot = object ? object->slot(path.name) : Orlo::SlotPtr();
        if (!slot)
            throw Conflict("no settings of the file take the value of " +
                           inQuotes(path.object + "." + path.name) +
                           " away; save the network first, and run that");
        return slot->ownParameter()->ownValue()->text();
    };
    return commandFor({plugins, setup_.file}, Script::read(setup_.text), network().script(),
                      textAt);
}

}  // namespace workbench
