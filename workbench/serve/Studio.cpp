#include "workbench/serve/Studio.hpp"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <ctime>
#include <set>

#include "runtime/lattice/Catalogue.hpp"
#include "runtime/lattice/PluginReports.hpp"
#include "runtime/quartz/text.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/nearest.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/network/editScript.hpp"
#include "workbench/session/entries.hpp"
#include "workbench/session/objects.hpp"
#include "workbench/session/parameters.hpp"

namespace workbench {

namespace {

using std::string;

/// What undo remembers: a thousand steps and more of a network of the usual size.
constexpr std::size_t MaxBytesOfSteps = 8'000'000;

/// A text of a change; a `CallError` if it is not there.
string textIn(Json const& change, char const* name) {
    auto const found = change.find(name);
    if (found == change.end() || !found->is_string())
        throw CallError("the change lacks \"" + string(name) + "\", which must be a text");
    return found->get<string>();
}

/// The same, but empty if it is not there.
string optionalText(Json const& change, char const* name) {
    return change.contains(name) && !change[name].is_null() ? textIn(change, name) : string();
}

double numberIn(Json const& change, char const* name) {
    auto const found = change.find(name);
    if (found == change.end() || !found->is_number())
        throw CallError("the change lacks \"" + string(name) + "\", which must be a number");
    return found->get<double>();
}

Json readChange(string const& text) {
    Json change = readJson(text);
    if (!change.is_object())
        throw CallError("the change is no JSON object");
    return change;
}

/// `Camera.zoom{Viewer1}`
string pathIn(Json const& change) {
    string const context = optionalText(change, "context");
    string const path = textIn(change, "object") + "." + textIn(change, "name");
    return context.empty() ? path : path + "{" + context + "}";
}

/// What a change is called in the list of steps.
string labelOf(Json const& change) {
    string const what = textIn(change, "do");
    if (what == "set")
        return what + " " + pathIn(change);
    if (what == "reset")
        return what + " " + textIn(change, "object") + "." + textIn(change, "name");
    if (what == "create")
        return what + " " + textIn(change, "key");
    if (what == "connect" || what == "disconnect")
        return what + " " + textIn(change, "object") + "." + textIn(change, "input");
    return what + " " + textIn(change, "object");
}

/// The lines that fail, with their reasons.
std::set<std::pair<string, string>> failuresOf(Network const& network) {
    std::set<std::pair<string, string>> failures;
    for (Complaint const& complaint : network.complaints())
        if (complaint.isFailure && !complaint.text.empty())
            failures.emplace(complaint.text, complaint.reason);
    return failures;
}

/// The first line that fails in one network and not in another; null if none does.
Complaint const* newFailure(Network const& network, Network const& before) {
    auto const known = failuresOf(before);
    for (Complaint const& complaint : network.complaints())
        if (complaint.isFailure && !complaint.text.empty() &&
            !known.contains({complaint.text, complaint.reason}))
            return &complaint;
    return nullptr;
}

/// A name for a new object of a key that no line of the network uses.
string freeName(Script const& script, string const& key) {
    std::set<string> taken;
    for (Line const& line : script.lines)
        taken.insert(objectOf(line.meaning));
    string const stem = nameIn(key);
    string name = stem;
    for (int number = 1; taken.contains(name); ++number)
        name = stem + std::to_string(number);
    return name;
}

/// The present time as a person's clock shows it: `2026-11-21T18:00:00`.
string timeNow() {
    std::time_t const now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    char text[sizeof "2026-11-21T18:00:00"];
    std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", std::localtime(&now));
    return text;
}

}  // namespace

Studio::Studio(Setup setup)
    : setup_(std::move(setup)),
      title_(textOf(pathOf(setup_.file).filename())),
      plugins_(pluginFiles(setup_.session.plugins)) {
    startWorld();
    loaded_ = timeNow();
}

void Studio::startWorld() {
    Script const script = Script::read(setup_.text);
    SessionOptions options = setup_.session;
    if (!setup_.watch) {
        world_ = std::make_unique<World>(options, script);
        return;
    }
    watch_ = std::make_unique<PluginWatch>(plugins_);
    std::optional<std::vector<std::filesystem::path>> copies;
    for (int attempt = 0; attempt < 8 && !copies; ++attempt)
        copies = watch_->copy();
    if (!copies)
        throw WorkError("the plug-in is being written all the time; start again when it is built");
    options.plugins = *copies;
    try {
        world_ = std::make_unique<World>(options, script);
    } catch (PluginError const& error) {
        throw PluginError(watch_->ofFiles(error.what()));
    }
    watch_->keep();
}

// --- plug-ins that change

void Studio::look() {
    if (!watch_ || !watch_->hasChanged())
        return;
    try {
        reload();
    } catch (WorkError const& error) {  // a file that cannot be read
        error_ = error.what();
        noteNews();
    }
}

void Studio::reload() {
    auto const copies = watch_->copy();
    if (!copies) {
        if (!error_.empty()) {  // the file in use is back
            error_.clear();
            noteNews();
        }
        return;
    }
    string const text = this->text();
    std::vector<std::filesystem::path> const before = watch_->inUse();
    if (tryWorld(*copies, text)) {
        watch_->keep();
        loaded_ = timeNow();
        error_.clear();
        ++content_;
    } else {
        string const reason = error_;
        watch_->drop();
        if (!tryWorld(before, text)) {
            world_.reset();
            world_ = std::make_unique<World>(Script::read(text));
            ++content_;
        }
        error_ = reason;
    }
    catalogue_.reset();
    ramps_.clear();
    refresh_.reset();
    noteNews();
}

/// Lets the present plug-ins go, and loads these. False, with the reason in `error_`,
/// if they cannot be had.
bool Studio::tryWorld(std::vector<std::filesystem::path> const& plugins, string const& text) {
    SessionOptions options = setup_.session;
    options.plugins = plugins;
    world_.reset();
    Orlo::takePluginReports();  // nobody else does, and they would become many
    try {
        world_ = std::make_unique<World>(options, Script::read(text));
        return true;
    } catch (std::exception const& error) {
        error_ = watch_->ofFiles(error.what());
        return false;
    }
}

// --- changes

std::uint64_t Studio::edit(string const& text) {
    Json const change = readChange(text);
    string const what = textIn(change, "do");
    if (what == "undo") {
        travel(undo_, redo_, "undo");
    } else if (what == "redo") {
        travel(redo_, undo_, "redo");
    } else {
        Step const step{labelOf(change), optionalText(change, "drag"), this->text()};
        carryOut(change);
        note(step, what != "move");
    }
    return revision_;
}

void Studio::carryOut(Json const& change) {
    struct Kind {
        char const* name;
        void (Studio::*apply)(Json const&);
    };
    static constexpr Kind Kinds[] = {
        {"set", &Studio::set},         {"reset", &Studio::reset},
        {"move", &Studio::move},       {"create", &Studio::create},
        {"delete", &Studio::remove},   {"replace", &Studio::exchange},
        {"connect", &Studio::connect}, {"disconnect", &Studio::disconnect}};
    string const what = textIn(change, "do");
    auto const* const kind =
        std::ranges::find_if(Kinds, [&](Kind const& each) { return what == each.name; });
    if (kind == std::end(Kinds))
        throw CallError("there is no change " + inQuotes(what));
    (this->*kind->apply)(change);
}

/// Enters a step that was done, unless it changed nothing or goes on with the one
/// before it.
void Studio::note(Step step, bool pictureMayDiffer) {
    if (step.text == text())
        return;
    bool const goesOn = !step.drag.empty() && !undo_.empty() && redo_.empty() &&
                        undo_.back().drag == step.drag && undo_.back().label == step.label;
    if (!goesOn)
        undo_.push_back(std::move(step));
    std::size_t bytes = 0;
    for (Step const& each : undo_)
        bytes += each.text.size();
    for (; undo_.size() > 1 && bytes > MaxBytesOfSteps; undo_.erase(undo_.begin()))
        bytes -= undo_.front().text.size();
    redo_.clear();
    if (pictureMayDiffer)
        noteChange();
    else
        noteNews();
}

/// Pictures may be others.
void Studio::noteChange() {
    ++content_;
    refresh_.reset();
    noteNews();
}

/// The page may be another.
void Studio::noteNews() {
    ++revision_;
    state_.reset();
}

void Studio::travel(std::vector<Step>& from, std::vector<Step>& to, char const* what) {
    if (from.empty())
        throw CallError(string("there is nothing to ") + what);
    Step step = from.back();
    string const present = text();
    world_->replace(networkOf(Script::read(step.text)));
    from.pop_back();
    to.push_back({step.label, "", present});
    noteChange();
}

void Studio::set(Json const& change) {
    string const path = pathIn(change);
    if (network().isMissing(textIn(change, "object")))
        throw CallError("the object " + inQuotes(textIn(change, "object")) +
                        " could not be created, so that its values wait in the network's text");
    setLiving(path, textIn(change, "text"));
}

/// A line that failed before and is mended by the change is no failure any more,
/// which only a new network knows.
void Studio::setLiving(string const& path, string const& text) {
    network().set(path, text);
    auto const place = valuePathOf(path);
    bool const hadFailed = std::ranges::any_of(network().complaints(), [&](Complaint const& each) {
        Meaning const meaning = meaningOf(each.text);
        auto const* const line = std::get_if<ParameterLine>(&meaning);
        return line != nullptr && line->object == place->object && line->name == place->name &&
               line->context == place->context;
    });
    if (hadFailed)
        rewrite([&](Script& script) {
            writeValue(script, *place, text, parameterNames(*network().object(place->object)));
        });
}

void Studio::reset(Json const& change) {
    string const object = textIn(change, "object");
    string const name = textIn(change, "name");
    std::vector<string> const names = parameterNames(*network().object(object));
    if (std::ranges::find(names, name) == names.end())
        throw CallError(inQuotes(object) + " has no parameter " + inQuotes(name) +
                        suggestion(name, names));
    rewrite([&](Script& script) { removeValues(script, object, name); });
}

void Studio::move(Json const& change) {
    string const object = textIn(change, "object");
    double const x = numberIn(change, "x");
    double const y = numberIn(change, "y");
    if (!std::isfinite(x) || !std::isfinite(y))
        throw CallError("a place has finite numbers");
    if (network().isMissing(object)) {
        rewrite([&](Script& script) {
            writeValue(script, {object, "qTelm::Net::x", ""}, Orlo::numberText(x), {});
            writeValue(script, {object, "qTelm::Net::y", ""}, Orlo::numberText(y), {});
        });
        return;
    }
    network().set(object + ".qTelm::Net::x", Orlo::numberText(x));
    network().set(object + ".qTelm::Net::y", Orlo::numberText(y));
}

/// Carries out a change of the script by another network in the place of the
/// present one.
void Studio::rewrite(std::function<void(Script&)> const& change) {
    Script script = network().script();
    change(script);
    replaceNetwork(script.write());
}

/// Throws `CallError` if a line fails that did not fail before.
void Studio::replaceNetwork(string const& text) {
    std::unique_ptr<Network> next = networkOf(Script::read(text));
    if (Complaint const* const failure = newFailure(*next, network()))
        throw CallError(failure->reason);
    world_->replace(std::move(next));
}

void Studio::create(Json const& change) {
    string const key = textIn(change, "key");
    string const wish = optionalText(change, "name");
    double const x = numberIn(change, "x");
    double const y = numberIn(change, "y");
    string const name = wish.empty() ? freeName(network().script(), key) : wish;
    if (network().findObject(name) || network().isMissing(name))
        throw CallError("there is an object " + inQuotes(name) + " already");
    rewrite([&](Script& script) {
        addObject(script, key, name);
        writeValue(script, {name, "qTelm::Net::ExpertLevel", ""}, "0", {});
        writeValue(script, {name, "qTelm::Net::status", ""}, "visible{visible}{icon}{hidden}", {});
        writeValue(script, {name, "qTelm::Net::x", ""}, Orlo::numberText(x), {});
        writeValue(script, {name, "qTelm::Net::y", ""}, Orlo::numberText(y), {});
    });
}

namespace {

/// The key of the line that makes an object; empty if the host makes it.
string keyOf(Script const& script, string const& name) {
    string key;
    for (Line const& line : script.lines)
        if (auto const* const creation = std::get_if<CreationLine>(&line.meaning))
            if (creation->object == name)
                key = creation->key;
    return key;
}

/// The names of what an object has lines of values for.
std::set<string> valueNames(Script const& script, string const& object) {
    std::set<string> names;
    for (Line const& line : script.lines) {
        if (auto const* const value = std::get_if<ParameterLine>(&line.meaning))
            if (value->object == object)
                names.insert(value->name);
        if (auto const* const property = std::get_if<PropertyLine>(&line.meaning))
            if (property->object == object)
                names.insert(property->parameter);
    }
    return names;
}

/// Whether an object takes all texts that a script has for a parameter.
bool takes(Orlo::VObject const& object, Script const& script, string const& name,
           string const& parameter) {
    Orlo::SlotPtr const slot = object.slot(parameter);
    if (!slot || !slot->isInput())
        return false;
    return std::ranges::all_of(script.lines, [&](Line const& line) {
        auto const* const value = std::get_if<ParameterLine>(&line.meaning);
        return value == nullptr || value->object != name || value->name != parameter ||
               slot->ownParameter()->copyOfDefault()->setFromText(value->value);
    });
}

/// Whether both have a parameter of that name and of one type.
bool haveSameType(Orlo::VObject const& a, Orlo::VObject const& b, string const& parameter) {
    Orlo::SlotPtr const left = a.slot(parameter);
    Orlo::SlotPtr const right = b.slot(parameter);
    return left && right &&
           left->ownParameter()->DefaultValue()->type() ==
               right->ownParameter()->DefaultValue()->type();
}

/// Takes out what is said of the present object that another one in its place would
/// not take.
void dropForeignValues(Script& script, string const& name, Orlo::VObject const& next,
                       Orlo::ObjectPtr const& present) {
    for (string const& parameter : valueNames(script, name))
        if (!takes(next, script, name, parameter) ||
            (present && !haveSameType(*present, next, parameter))) {
            removeValues(script, name, parameter);
            removeProperties(script, name, parameter);
        }
}

/// Takes out the connections of an object that fail in a network. False if none
/// does.
bool dropFailedConnections(Script& script, string const& name, Network const& network) {
    bool dropped = false;
    for (Complaint const& complaint : network.complaints()) {
        Meaning const meaning = meaningOf(complaint.text);
        auto const* const line = std::get_if<ConnectionLine>(&meaning);
        if (complaint.isFailure && line != nullptr &&
            (line->object == name || line->provider == name))
            dropped = removeConnection(script, line->object, line->input) || dropped;
    }
    return dropped;
}

}  // namespace

void Studio::remove(Json const& change) {
    string const name = textIn(change, "object");
    if (!network().isMissing(name))
        static_cast<void>(network().object(name));
    if (keyOf(network().script(), name).empty())
        throw CallError(inQuotes(name) + " is made by the host and cannot be deleted");
    rewrite([&](Script& script) { removeObject(script, name); });
}

void Studio::exchange(Json const& change) {
    string const name = textIn(change, "object");
    string const key = textIn(change, "key");
    Orlo::ObjectPtr const present = network().findObject(name);
    if (!present && !network().isMissing(name))
        static_cast<void>(network().object(name));
    Script script = network().script();
    replaceKey(script, name, key);
    dropForeignValues(script, name, *workbench::create(key), present);
    script = Script::read(script.write());
    if (dropFailedConnections(script, name, *networkOf(script)))
        script = Script::read(script.write());
    replaceNetwork(script.write());
}

void Studio::connect(Json const& change) {
    ConnectionLine line{textIn(change, "object"), textIn(change, "input"),
                        textIn(change, "provider"), optionalText(change, "parameter")};
    Orlo::ObjectPtr const consumer = network().object(line.object);
    Orlo::ObjectPtr const provider = network().object(line.provider);
    std::vector<string> outputs;
    for (Orlo::SlotPtr const& slot : provider->slots())
        if (!slot->isInput())
            outputs.push_back(slot->name());
    if (outputs == std::vector<string>{line.parameter})
        line.parameter.clear();  // saved networks name what needs a name
    rewrite([&](Script& script) { writeConnection(script, line, parameterNames(*consumer)); });
}

void Studio::disconnect(Json const& change) {
    string const object = textIn(change, "object");
    string const input = textIn(change, "input");
    rewrite([&](Script& script) {
        if (!removeConnection(script, object, input))
            throw CallError(inQuotes(input) + " of " + inQuotes(object) +
                            " has no connection in this network");
    });
}

}  // namespace workbench
