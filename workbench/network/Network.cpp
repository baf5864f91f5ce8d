#include "workbench/network/Network.hpp"

#include <algorithm>
#include <array>

#include "host/values/VValue.hpp"
#include "runtime/lattice/Catalogue.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/nearest.hpp"
#include "workbench/network/connect.hpp"
#include "workbench/network/editScript.hpp"
#include "workbench/nodes/HostObject.hpp"
#include "workbench/nodes/Viewer.hpp"
#include "workbench/nodes/hostObjects.hpp"
#include "workbench/nodes/values.hpp"
#include "workbench/session/objects.hpp"
#include "workbench/session/parameters.hpp"

namespace workbench {

namespace {

using std::string;

/// A new value of type `T` that the text means, or empty.
template <class T>
Orlo::ValuePtr read(string const& text) {
    T value{};
    if (!Orlo::VValueTrait<T>::setValueFromText(value, text))
        return nullptr;
    return new Orlo::VValue<T>(value);
}

struct PropertyType {
    char const* name;
    Orlo::ValuePtr (*read)(string const& text);
};

constexpr std::array PropertyTypes{PropertyType{"double", read<double>},
                                   PropertyType{"int32_t", read<int>},
                                   PropertyType{"bool", read<bool>}};

Orlo::ValuePtr propertyValue(PropertyLine const& line) {
    auto const type = std::ranges::find_if(
        PropertyTypes, [&](PropertyType const& each) { return line.type == each.name; });
    if (type == PropertyTypes.end())
        throw CallError("there is no property type " + inQuotes(line.type) +
                        "; there are 'double', 'int32_t' and 'bool'");
    Orlo::ValuePtr value = type->read(line.value);
    if (!value)
        throw CallError(inQuotes(line.value) + " is no " + line.type);
    return value;
}

/// Throws `CallError` unless the text is one of the attribute's form; an
/// attribute that is not known takes any text.
void checkAttribute(string const& name, string const& text) {
    if (name == "qTelm::Net::status") {
        Orlo::Enum status;
        status.addCase("visible").addCase("icon").addCase("hidden");
        if (!Orlo::VValueTrait<Orlo::Enum>::setValueFromText(status, text))
            throw CallError(inQuotes(text) + " is no status; it is one of 'visible', 'icon' and " +
                            "'hidden', as visible{visible}{icon}{hidden}");
    } else if (name == "qTelm::Net::ExpertLevel" || name == "qTelm::Net::x" ||
               name == "qTelm::Net::y") {
        if (!read<double>(text))
            throw CallError(inQuotes(text) + " is no number, which " + name + " must be");
    }
}

Orlo::SlotPtr findParameter(Orlo::VObject const& object, string const& name) {
    Orlo::SlotPtr const slot = object.slot(name);
    if (!slot)
        throw CallError(inQuotes(object.Name()) + " has no parameter " + inQuotes(name) +
                        suggestion(name, parameterNames(object)));
    return slot;
}

/// Throws `CallError` if the text cannot stand in a line of a script.
void checkWritable(ValuePath const& path, string const& text) {
    ParameterLine const line{path.object, path.name, path.context, text};
    if (std::holds_alternative<UnreadableLine>(meaningOf(*textOf(line))))
        throw CallError("the text " + inQuotes(text) +
                        " cannot stand in a saved network; it must be one line of at most " +
                        std::to_string(Script::MaxLineLength) + " bytes");
}

/// What is wrong with an object, unless that is the fault of one that it reads.
Fault faultOf(Orlo::VObject const& object) {
    auto const* const node = dynamic_cast<Node const*>(&object);
    if (node == nullptr || node->fault().reason.empty())
        return {};
    Orlo::SlotPtr const slot = node->slot(node->fault().parameter);
    Orlo::ObjectPtr const provider(slot->provider());
    auto const* const cause = dynamic_cast<Node const*>(provider.get());
    return cause != nullptr && !cause->fault().reason.empty() ? Fault() : node->fault();
}

/// The value that stands in the pool itself, or without a pool the own one.
Orlo::ValuePtr valueAt(Orlo::VParameter const& parameter, Orlo::PoolPtr const& pool) {
    return pool ? parameter.getLocalValue(pool, "", false) : parameter.ownValue();
}

}  // namespace

// --- what there is

Orlo::ObjectPtr Network::object(string const& name) const {
    if (Orlo::ObjectPtr const present = findObject(name))
        return present;
    if (missing_.contains(name))
        throw CallError("the object " + inQuotes(name) + " could not be created");
    throw CallError("there is no object " + inQuotes(name) + suggestion(name, names()));
}

Orlo::ObjectPtr Network::findObject(string const& name) const {
    auto const found = objects_.find(name);
    return found != objects_.end() ? found->second : Orlo::ObjectPtr();
}

std::vector<string> Network::names() const {
    std::vector<string> names;
    for (auto const& [name, object] : objects_)
        names.push_back(name);
    return names;
}

std::vector<string> Network::viewers() const {
    std::vector<string> names;
    for (auto const& [name, object] : objects_)
        if (object && isViewer(*object))
            names.push_back(name);
    return names;
}

Orlo::PoolPtr Network::pool(string const& context) {
    Orlo::PoolPtr& pool = pools_[context];
    if (!pool)
        pool = new Orlo::ValuePool(context);
    return pool;
}

std::vector<string> Network::contexts() const {
    std::vector<string> names;
    for (auto const& [name, pool] : pools_)
        names.push_back(name);
    return names;
}

string Network::attribute(string const& object, string const& name) const {
    auto const attributes = attributes_.find(object);
    if (attributes == attributes_.end())
        return {};
    auto const found = attributes->second.find(name);
    return found != attributes->second.end() ? found->second : string();
}

// --- executing

void Network::execute(Script const& script) {
    script_ = script;
    complaints_.clear();
    missing_.clear();
    failedInputs_.clear();
    for (Line const& line : script_.lines)
        execute(line);
    if (script_.endsOpen)
        complaints_.push_back({script_.lines.back().number, "",
                               "the last line has no line feed; is the file cut off?", false});
    remarkOnContexts();
    checkSetups();
    reportMissing();
}

void Network::execute(Line const& line) {
    if (needsMissing(line.meaning)) {
        noteFailure(line.meaning);
        return;
    }
    line_ = line.number;
    try {
        std::visit([this](auto const& meaning) { apply(meaning); }, line.meaning);
    } catch (std::exception const& error) {
        complaints_.push_back({line.number, line.text, error.what()});
        noteFailure(line.meaning);
        if (auto const* const creation = std::get_if<CreationLine>(&line.meaning))
            if (!objects_.contains(creation->object))
                missing_.insert_or_assign(creation->object, Missing{line.number, 0});
    }
}

bool Network::needsMissing(Meaning const& meaning) {
    if (missing_.empty() || std::holds_alternative<CreationLine>(meaning) ||
        std::holds_alternative<ExpectedLine>(meaning) ||
        std::holds_alternative<DeletionLine>(meaning))
        return false;
    auto found = missing_.find(objectOf(meaning));
    if (auto const* const connection = std::get_if<ConnectionLine>(&meaning))
        if (found == missing_.end())
            found = missing_.find(connection->provider);
    if (found == missing_.end())
        return false;
    ++found->second.concerned;
    return true;
}

/// Says behind each complaint of an object that could not be made what else it
/// stopped.
void Network::reportMissing() {
    for (auto const& [name, missing] : missing_)
        if (missing.concerned > 0)
            complaints_.push_back({missing.line, "",
                                   std::to_string(missing.concerned) + " further line" +
                                       (missing.concerned == 1 ? " concerns " : "s concern ") +
                                       inQuotes(name) + ", which could not be created"});
    std::ranges::stable_sort(complaints_, {}, &Complaint::line);
}

/// Remembers an input that stays unconnected, of which nobody need hear twice.
void Network::noteFailure(Meaning const& meaning) {
    if (auto const* const connection = std::get_if<ConnectionLine>(&meaning))
        failedInputs_.emplace(connection->object, connection->input);
}

void Network::remark(string const& text) {
    complaints_.push_back({line_, "", text, false});
}

/// A value for a context holds in the viewer of that name, which may come behind
/// the value.
void Network::remarkOnContexts() {
    std::vector<string> const known = viewers();
    std::set<string> told(known.begin(), known.end());
    for (Line const& line : script_.lines) {
        auto const* const parameter = std::get_if<ParameterLine>(&line.meaning);
        if (parameter == nullptr || parameter->context.empty() ||
            !told.insert(parameter->context).second)
            continue;
        line_ = line.number;
        remark("there is no viewer " + inQuotes(parameter->context) +
               ", so that values for it are kept and change nothing" +
               suggestion(parameter->context, known));
    }
}

/// A saved network ends with a set-up line for each of its objects, so that one
/// cut at the end of a line can be told by those that are missing.
void Network::checkSetups() {
    std::set<string> waiting;
    for (auto const& [name, object] : objects_)
        waiting.insert(name);
    bool hasSections = false;
    for (Line const& line : script_.lines) {
        hasSections = hasSections || isSectionHead(line);
        if (std::holds_alternative<SetupLine>(line.meaning))
            waiting.erase(objectOf(line.meaning));
    }
    if (hasSections && !waiting.empty())
        complaints_.push_back({script_.lines.back().number, "",
                               std::to_string(waiting.size()) + " of the network's " +
                                   std::to_string(objects_.size()) +
                                   " objects are never set up, such as " +
                                   inQuotes(*waiting.begin()) + "; is the file cut off?"});
}

void Network::apply(ExpectedLine const& line) {
    if (objects_.contains(line.object))
        return;
    bool const isOfCatalogue = !line.key.empty() && Orlo::findCreator(line.key);
    Orlo::ObjectPtr const object = isOfCatalogue ? create(line.key, line.object, nullptr, *this)
                                                 : makeHostObject(line.key, line.object, *this);
    objects_[line.object] = object;
    noteSight(object);
}

/// Cameras and viewers connect themselves when they come.
void Network::noteSight(Orlo::ObjectPtr const& made) {
    if (isViewer(*made)) {
        viewers_.emplace_back(made);
        dependencies_.read(*made);
    } else if (made->slot("::view")) {
        for (Orlo::WeakObjectPtr const& each : viewers_)
            if (Orlo::ObjectPtr const viewer(each); viewer)
                dependencies_.read(*viewer);
    }
}

void Network::apply(DeletionLine const& line) {
    if (Orlo::ObjectPtr const object = findObject(line.object))
        dependencies_.forget(*object);
    objects_.erase(line.object);
    attributes_.erase(line.object);
    kept_.erase(line.object);
    missing_.erase(line.object);
}

void Network::apply(CreationLine const& line) {
    if (objects_.contains(line.object))
        throw CallError("there is an object " + inQuotes(line.object) + " already; '<>" +
                        line.object + "' before this line deletes it");
    objects_[line.object] = create(line.key, line.object, nullptr, *this);
    missing_.erase(line.object);
}

void Network::apply(ParameterLine const& line) {
    Orlo::ObjectPtr const subject = object(line.object);
    if (!subject->slot(line.name))
        keep(*subject, line);
    setText(*subject, line.name, line.value,
            line.context.empty() ? Orlo::PoolPtr() : pool(line.context));
}

/// Adds a parameter that the object does not know, if it keeps such.
void Network::keep(Orlo::VObject& subject, ParameterLine const& line) {
    std::vector<string> const known = knownParameters(subject);
    if (!addKept(subject, line.name, line.value))
        return;
    kept_[line.object].insert(line.name);
    remarkOnKept(subject, line.name, known);
}

/// Says that a value changes nothing, unless that is how it should be: host
/// objects keep much that no picture needs, and of them only a name that is nearly
/// one of theirs looks like a slip.
void Network::remarkOnKept(Orlo::VObject const& subject, string const& name,
                           std::vector<string> const& known) {
    string const near = suggestion(name, known);
    bool const isOfHost = dynamic_cast<HostObject const*>(&subject) != nullptr;
    if (!isOfHost || !near.empty())
        remark(inQuotes(subject.Name()) + " has no parameter " + inQuotes(name) +
               ", so that its value is kept and changes nothing" + near);
}

/// The inputs that an object reads, without those that it merely keeps.
std::vector<string> Network::knownParameters(Orlo::VObject const& object) const {
    std::vector<string> names = parameterNames(object);
    if (auto const kept = kept_.find(object.Name()); kept != kept_.end())
        std::erase_if(names, [&](string const& name) { return kept->second.contains(name); });
    return names;
}

/// Sets a parameter. One that is merely kept takes any text: nobody knows what
/// type it is meant to have, and its first text may have looked like a number by
/// chance.
void Network::setText(Orlo::VObject& subject, string const& name, string const& text,
                      Orlo::PoolPtr const& context) {
    try {
        setParameter(subject, name, text, context);
    } catch (CallError const&) {
        auto const kept = kept_.find(subject.Name());
        if (kept == kept_.end() || !kept->second.contains(name) ||
            dependencies_.isRead(subject, *subject.slot(name)->ownParameter()))
            throw;
        std::vector<Orlo::PoolPtr> pools;
        for (auto const& each : pools_)
            pools.push_back(each.second);
        keepAsText(subject, name, pools);
        setParameter(subject, name, text, context);
    }
}

void Network::apply(PropertyLine const& line) {
    Orlo::SlotPtr const slot = findParameter(*object(line.object), line.parameter);
    slot->ownParameter()->setProperty(line.name, propertyValue(line), nullptr, nullptr, nullptr);
}

void Network::apply(NoteLine const& line) {
    static_cast<void>(object(line.object));
}

void Network::apply(AttributeLine const& line) {
    static_cast<void>(object(line.object));
    checkAttribute(line.name, line.value);
    attributes_[line.object][line.name] = line.value;
}

void Network::apply(ConnectionLine const& line) {
    Orlo::ObjectPtr const provider = object(line.provider);
    connect(*object(line.object), line.input, *provider, line.parameter, dependencies_);
}

void Network::apply(SetupLine const& line) {
    Orlo::ObjectPtr const subject = object(line.object);
    subject->setup(subject->slots());
}

void Network::apply(UnreadableLine const& line) {
    throw CallError(line.reason);
}

// --- what a picture lacks

std::vector<Complaint> Network::faultsBehind(string const& viewer) const {
    std::vector<Complaint> faults;
    std::set<Orlo::VObject const*> seen;
    std::vector<Orlo::ObjectPtr> waiting{object(viewer)};
    while (!waiting.empty()) {
        Orlo::ObjectPtr const next = waiting.back();
        waiting.pop_back();
        if (!seen.insert(next.get()).second)
            continue;
        for (Orlo::SlotPtr const& slot : next->slots())
            if (Orlo::ObjectPtr const provider(slot->provider()); provider)
                waiting.push_back(provider);
        Fault const fault = faultOf(*next);
        if (!fault.reason.empty() && !failedInputs_.contains({next->Name(), fault.parameter}))
            faults.push_back({lineOf(next->Name(), fault.parameter), "",
                              inQuotes(next->Name()) + ": " + fault.reason});
    }
    std::ranges::stable_sort(faults, {}, &Complaint::line);
    return faults;
}

/// The line that says last what a parameter is, or else the one that makes its
/// object.
std::size_t Network::lineOf(string const& object, string const& parameter) const {
    std::size_t number = 0;
    for (Line const& line : script_.lines) {
        auto const* const value = std::get_if<ParameterLine>(&line.meaning);
        auto const* const connection = std::get_if<ConnectionLine>(&line.meaning);
        bool const concerns =
            begins(line.meaning, object) ||
            (value != nullptr && value->object == object && value->name == parameter) ||
            (connection != nullptr && connection->object == object &&
             connection->input == parameter);
        if (concerns && line.number != 0)
            number = line.number;
    }
    return number;
}

// --- changes

void Network::set(string const& path, string const& text) {
    auto const place = valuePathOf(path);
    if (!place)
        throw CallError(inQuotes(path) + " is no place of a value; it must have the form " +
                        "OBJECT.NAME or OBJECT.NAME{CONTEXT}");
    checkWritable(*place, text);
    if (isAttribute(place->name) && place->context.empty())
        setAttribute(*place, text);
    else
        setValue(*place, text);
}

void Network::setAttribute(ValuePath const& path, string const& text) {
    static_cast<void>(object(path.object));
    checkAttribute(path.name, text);
    attributes_[path.object][path.name] = text;
    writeValue(script_, path, text, {});
}

void Network::setValue(ValuePath const& path, string const& text) {
    Orlo::ObjectPtr const subject = object(path.object);
    Orlo::PoolPtr const context = knownPool(path.context);
    Orlo::SlotPtr const slot = findParameter(*subject, path.name);
    Orlo::ValuePtr const present = valueAt(*slot->ownParameter(), context);
    Orlo::ValuePtr const before = present ? present->copy() : nullptr;
    setText(*subject, path.name, text, context);
    Orlo::ValuePtr const after =
        valueAt(*findParameter(*subject, path.name)->ownParameter(), context);
    if (!before || after->text() != before->text())
        writeValue(script_, path, after->text(), parameterNames(*subject));
}

/// The pool of a context that the network knows: a viewer's, or one that a line
/// names. Empty for the empty name.
Orlo::PoolPtr Network::knownPool(string const& context) {
    if (context.empty())
        return nullptr;
    std::vector<string> known = viewers();
    if (!pools_.contains(context) && std::ranges::find(known, context) == known.end())
        throw CallError("there is no context " + inQuotes(context) + suggestion(context, known));
    return pool(context);
}

}  // namespace workbench
