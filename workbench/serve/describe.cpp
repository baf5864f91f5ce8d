#include "workbench/serve/describe.hpp"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <set>

#include "runtime/quartz/text.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/nodes/HostObject.hpp"
#include "workbench/nodes/Viewer.hpp"
#include "workbench/session/entries.hpp"
#include "workbench/session/lookupLine.hpp"
#include "workbench/session/objects.hpp"
#include "workbench/session/typeNames.hpp"

namespace workbench {

namespace {

using std::string;

/// The value as a `T`, if it is one.
template <class T>
std::optional<T> as(Orlo::ValuePtr const& value) {
    Orlo::StrongPtr<Orlo::VTypedValueBase<T>, Orlo::VValueBase> const typed(value);
    T result{};
    return typed && typed->getValue(result) ? std::optional<T>(result) : std::nullopt;
}

Json orNull(string const& text) {
    return text.empty() ? Json() : Json(text);
}

/// The number of a text of the host, such as an attribute of the network editor.
double numberIn(string const& text) {
    Orlo::TextReader reader(text);
    double number = 0;
    return reader.number(number) && std::isfinite(number) ? number : 0.0;
}

/// A float as the double of its shortest text.
Json numberOf(float value) {
    return std::isfinite(value) ? Json(numberIn(shortest(value))) : Json();
}

Json choicesOf(Orlo::ValuePtr const& value) {
    std::optional<Orlo::Enum> const choice = as<Orlo::Enum>(value);
    if (!choice || !*choice)
        return nullptr;
    Json words = Json::array();
    for (string const& word : **choice)
        words.push_back(word);
    return words;
}

Json flagsOf(Orlo::ValuePtr const& value) {
    std::optional<Orlo::FlagList> const flags = as<Orlo::FlagList>(value);
    if (!flags)
        return nullptr;
    Json list = Json::array();
    for (auto const& [name, on] : *flags)
        list.push_back({{"name", name}, {"on", on}});
    return list;
}

Json colorOf(Orlo::ValuePtr const& value) {
    std::optional<Tessar::rgba_float_t> const color = as<Tessar::rgba_float_t>(value);
    if (!color)
        return nullptr;
    Json floats = Json::array();
    for (std::size_t i = 0; i < color->size(); ++i)
        floats.push_back(numberOf((*color)[i]));
    return floats;
}

Json rangeOf(Orlo::ValuePtr const& value) {
    std::optional<Orlo::Range> const range = as<Orlo::Range>(value);
    return range ? Json::array({range->minimum, range->maximum}) : Json();
}

Json timeOf(Orlo::ValuePtr const& value) {
    std::optional<Orlo::VTime> const time = as<Orlo::VTime>(value);
    return time ? Json{{"value", time->value},
                       {"min", time->minimum},
                       {"max", time->maximum},
                       {"step", time->step}}
                : Json();
}

string propertyText(Orlo::VParameter const& parameter, string const& name) {
    Orlo::ValueMap const* const properties = parameter.properties();
    Orlo::ValuePtr const value = properties != nullptr ? properties->getValue(name) : nullptr;
    return value ? value->text() : string();
}

string textOf(Orlo::ValuePtr const& value) {
    return value ? value->text() : string();
}

bool isOfHost(Orlo::VObject const& object) {
    return dynamic_cast<HostObject const*>(&object) != nullptr;
}

/// Whether an input has a value that a person gives it.
bool isOwnValue(Orlo::VSlot const& slot) {
    Orlo::ValuePtr const value = slot.ownParameter()->copyOfDefault();
    return !slot.isConnected() && value && value->setFromText(value->text());
}

/// What an input may be connected to: outputs, and of the objects that a network
/// adds also what they are given.
struct Provider {
    Orlo::ObjectPtr object;
    Orlo::SlotPtr slot;
};

/// Writes the nodes of a network.
class NodeWriter {
public:
    NodeWriter(Network& network, Refresh const& refresh)
        : network_(network), refresh_(refresh), contexts_(network.contexts()) {
        for (string const& name : network.names()) {
            Orlo::ObjectPtr const object = network.object(name);
            for (Orlo::SlotPtr const& slot : object->slots())
                if (!slot->isInput() || (!isOfHost(*object) && isOwnValue(*slot)))
                    providers_.push_back({object, slot});
        }
    }

    Json all() {
        Json nodes = Json::array();
        std::set<string> seen;
        for (Line const& line : network_.script().lines) {
            string const name = objectOf(line.meaning);
            if (name.empty() || !begins(line.meaning, name) || seen.contains(name))
                continue;
            if (Orlo::ObjectPtr const object = network_.findObject(name))
                nodes.push_back(living(*object, line.meaning));
            else if (network_.isMissing(name))
                nodes.push_back(missing(name, line.meaning));
            else
                continue;
            seen.insert(name);
        }
        return nodes;
    }

private:
    /// What all nodes have.
    Json outline(string const& name, Meaning const& begin) const {
        auto const* const creation = std::get_if<CreationLine>(&begin);
        string const status = network_.attribute(name, "qTelm::Net::status");
        return {{"name", name},
                {"key", creation != nullptr ? creation->key : std::get<ExpectedLine>(begin).key},
                {"x", numberIn(network_.attribute(name, "qTelm::Net::x"))},
                {"y", numberIn(network_.attribute(name, "qTelm::Net::y"))},
                {"status", status.empty() ? "visible" : status.substr(0, status.find('{'))},
                {"expertLevel", numberIn(network_.attribute(name, "qTelm::Net::ExpertLevel"))},
                {"implicit", creation == nullptr},
                {"missing", false},
                {"faults", complaintsAbout(name)}};
    }

    Json complaintsAbout(string const& name) const {
        Json reasons = Json::array();
        for (Complaint const& complaint : network_.complaints())
            if (complaint.isFailure && objectOf(meaningOf(complaint.text)) == name)
                reasons.push_back(complaint.reason);
        if (auto const failed = refresh_.objects.find(name); failed != refresh_.objects.end())
            reasons.push_back(failed->second);
        return reasons;
    }

    Json living(Orlo::VObject& object, Meaning const& begin) {
        Json node = outline(object.Name(), begin);
        auto const* const ofHost = dynamic_cast<Node const*>(&object);
        if (ofHost != nullptr && !ofHost->fault().reason.empty())
            node["faults"].push_back(ofHost->fault().reason);
        node["isMap"] = isMap(object);
        node["isViewer"] = isViewer(object);
        node["icon"] = !object.xpm_icon().empty();
        findProviders(object);
        node["parameters"] = Json::array();
        node["outputs"] = Json::array();
        for (Orlo::SlotPtr const& slot : object.slots())
            if (slot->isInput())
                node["parameters"].push_back(parameter(object, slot));
            else
                node["outputs"].push_back({{"name", slot->name()}, {"type", typeOf(slot)}});
        if (object.Name().ends_with("Scene"))
            addMembers(object, node["parameters"]);
        return node;
    }

    /// A node that could not be made keeps its texts.
    Json missing(string const& name, Meaning const& begin) const {
        Json node = outline(name, begin);
        node["missing"] = true;
        node["isMap"] = node["key"].get<string>().starts_with("Colormaps/");
        node["isViewer"] = false;
        node["icon"] = false;
        node["parameters"] = Json::array();
        node["outputs"] = Json::array();
        for (Line const& line : network_.script().lines)
            if (auto const* const value = std::get_if<ParameterLine>(&line.meaning))
                if (value->object == name && value->context.empty()) {
                    Json each = plain(value->name, "", value->value);
                    each["connectable"] = false;
                    node["parameters"].push_back(each);
                }
        return node;
    }

    static string typeOf(Orlo::SlotPtr const& slot) {
        Orlo::ValuePtr const value = slot->ownParameter()->DefaultValue();
        return value ? typeName(value->type()) : string();
    }

    /// What all parameters have.
    static Json plain(string const& name, string const& type, string const& text) {
        return {{"name", name},        {"type", type},
                {"text", text},        {"default", text},
                {"expert", 0},         {"min", nullptr},
                {"max", nullptr},      {"contexts", Json::object()},
                {"choices", nullptr},  {"flags", nullptr},
                {"color", nullptr},    {"range", nullptr},
                {"time", nullptr},     {"connected", nullptr},
                {"connectable", true}, {"candidates", Json::array()}};
    }

    Json parameter(Orlo::VObject const& object, Orlo::SlotPtr const& slot) {
        Orlo::VParameter const& parameter = *slot->ownParameter();
        Orlo::ValuePtr const value = parameter.ownValue();
        Json json = plain(slot->name(), typeOf(slot), textOf(value));
        json["default"] = textOf(parameter.DefaultValue());
        json["expert"] = slot->expertLevel();
        json["min"] = orNull(propertyText(parameter, "min"));
        json["max"] = orNull(propertyText(parameter, "max"));
        for (string const& context : contexts_)
            if (Orlo::ValuePtr const local =
                    parameter.getLocalValue(network_.pool(context), "", false))
                json["contexts"][context] = local->text();
        json["choices"] = choicesOf(value);
        json["flags"] = flagsOf(value);
        json["color"] = colorOf(value);
        json["range"] = rangeOf(value);
        json["time"] = timeOf(value);
        if (Orlo::ObjectPtr const provider(slot->provider()); provider)
            json["connected"] = {{"object", provider->Name()},
                                 {"parameter", nameIn(*provider, slot->parameter())}};
        for (Provider const& each : reachable_)
            if (object.allowParameterReplacement(slot, each.slot->parameter()))
                json["candidates"].push_back(
                    {{"object", each.object->Name()}, {"parameter", each.slot->name()}});
        return json;
    }

    /// The name by which an object has a parameter.
    static string nameIn(Orlo::VObject const& object, Orlo::ParameterPtr const& parameter) {
        for (Orlo::SlotPtr const& slot : object.slots())
            if (slot->parameter().get() == parameter.get())
                return slot->name();
        return {};
    }

    /// A scene takes whatever can be shown at inputs that it makes on demand.
    void addMembers(Orlo::VObject const& scene, Json& parameters) const {
        for (Provider const& each : reachable_) {
            string const name = each.object->Name() + ".renderable";
            if (each.slot->isInput() || each.slot->name() != "renderable" || scene.slot(name))
                continue;
            Json member = plain(name, typeOf(each.slot), "");
            member["candidates"].push_back(
                {{"object", each.object->Name()}, {"parameter", each.slot->name()}});
            parameters.push_back(member);
        }
    }

    /// What the object may read without a cycle.
    void findProviders(Orlo::VObject const& object) {
        reachable_.clear();
        Orlo::VObject const* last = nullptr;
        bool isFree = false;
        for (Provider const& each : providers_) {
            if (each.object.get() != last) {
                last = each.object.get();
                isFree = last != &object && !network_.dependsOn(*last, object);
            }
            if (isFree)
                reachable_.push_back(each);
        }
    }

    Network& network_;
    Refresh const& refresh_;
    std::vector<string> contexts_;
    std::vector<Provider> providers_;
    std::vector<Provider> reachable_;  ///< of the object that is written
};

}  // namespace

Orlo::PoolPtr firstPool(Network& network) {
    std::vector<string> const viewers = network.viewers();
    return network.pool(viewers.empty() ? "Viewer1" : viewers.front());
}

Refresh bringUpToDate(Network& network, int maxSide) {
    Refresh refresh;
    for (string const& name : network.viewers()) {
        try {
            Orlo::ObjectPtr const viewer = network.object(name);
            request(*viewer, network.pool(name));
            Shown const shown = dynamic_cast<Viewer const&>(*viewer).shown(network.pool(name));
            if (shown.width > maxSide || shown.height > maxSide)
                throw WorkError("a picture of " + std::to_string(shown.width) + " x " +
                                std::to_string(shown.height) +
                                " pixels is not drawn here; \"size\" may have up to " +
                                std::to_string(maxSide) + " a side");
        } catch (std::exception const& error) {
            refresh.viewers[name] = error.what();
        }
    }
    Orlo::PoolPtr const pool = firstPool(network);
    for (string const& name : network.names()) {
        Orlo::ObjectPtr const object = network.object(name);
        try {
            if (isMap(*object))
                request(*object, pool);
        } catch (std::exception const& error) {
            refresh.objects[name] = error.what();
        }
    }
    return refresh;
}

Json complaintsOf(Network const& network) {
    std::vector<Line> const& lines = network.script().lines;
    Json all = Json::array();
    for (Complaint const& complaint : network.complaints()) {
        auto const line = std::ranges::find(lines, complaint.line, &Line::number);
        std::size_t const number = static_cast<std::size_t>(line - lines.begin()) + 1;
        string const object = line != lines.end() ? objectOf(line->meaning) : string();
        all.push_back({{"line", number},
                       {"reason", complaint.reason},
                       {"failure", complaint.isFailure},
                       {"object", orNull(object)}});
    }
    return all;
}

Json viewersOf(Network& network, Refresh const& refresh) {
    Json all = Json::array();
    for (string const& name : network.viewers()) {
        Json viewer{{"name", name}, {"width", 0}, {"height", 0}, {"error", nullptr}};
        try {
            Orlo::ObjectPtr const object = network.object(name);
            Shown const shown = dynamic_cast<Viewer const&>(*object).shown(network.pool(name));
            viewer["width"] = shown.width;
            viewer["height"] = shown.height;
        } catch (WorkError const&) {  // its size, of which the update told
        }
        if (auto const failed = refresh.viewers.find(name); failed != refresh.viewers.end())
            viewer["error"] = failed->second;
        all.push_back(viewer);
    }
    return all;
}

Json nodesOf(Network& network, Refresh const& refresh) {
    return NodeWriter(network, refresh).all();
}

namespace {

Json entryOf(Orlo::VCreatorBase const& entry, bool isOfMap, string const& plugin) {
    string const key = entry.keyname("/");
    return {{"key", key},
            {"name", nameIn(key)},
            {"description", entry.get(Orlo::VCreatorBase::Description)},
            {"tags", tagsOf(entry)},
            {"kind", isOfMap ? "map" : "node"},
            {"plugin", plugin}};
}

}  // namespace

Json catalogueOf(Session const* session) {
    Json all = Json::array();
    std::set<Orlo::VCreatorBase const*> ofPlugins;
    for (Orlo::WeakCreatorPtr const& entry :
         session != nullptr ? session->entries() : std::vector<Orlo::WeakCreatorPtr>()) {
        ofPlugins.insert(entry.get());
        all.push_back(entryOf(*entry, isMap(*create(entry)),
                              textOf(session->pluginOf(*entry).path().filename())));
    }
    for (Orlo::WeakCreatorPtr const& entry : Orlo::catalogue())
        if (!ofPlugins.contains(entry.get()))
            all.push_back(entryOf(*entry, false, ""));
    return all;
}

}  // namespace workbench
