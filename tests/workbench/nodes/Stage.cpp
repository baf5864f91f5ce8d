#include "tests/workbench/nodes/Stage.hpp"

#include "workbench/nodes/Node.hpp"
#include "workbench/nodes/Viewer.hpp"
#include "workbench/nodes/hostObjects.hpp"
#include "workbench/session/objects.hpp"
#include "workbench/session/parameters.hpp"

using namespace Orlo;

namespace tests {

MapSource::MapSource() : Tincture("map", 0, nullptr, "colormap") {
    registerValueTypes<double>();
    enableRequestProcessing();
}

bool MapSource::update(VRequest& request, double) {
    ++updates;
    double blue = 0.0;
    blue_.read(request.pool(), blue);
    StrongPtr<VTypedValueBase<ColormapPtr>, VValueBase> const value(
        valueInPool(*colormapOutput, request.pool(), true));
    ColormapPtr const map = new TellingMap(blue, min, max);
    map->touch();
    return value->setValue(map);
}

FieldSource::FieldSource(workbench::FieldPtr const& field)
    : VObject("field", 0, nullptr), provided_(field) {
    enableRequestProcessing();
}

bool FieldSource::update(VRequest& request, double) {
    output_.publish(request.pool(), provided_);
    return true;
}

Stage::Stage() = default;
Stage::~Stage() = default;

VObject& Stage::make(std::string const& key, std::string const& name) {
    return add(name, workbench::create(key, name, nullptr, context));
}

VObject& Stage::host(std::string const& name, std::string const& kind) {
    auto const found = objects_.find(name);
    return found != objects_.end() ? *found->second
                                   : add(name, workbench::makeHostObject(kind, name, context));
}

VObject& Stage::add(std::string const& name, ObjectPtr const& object) {
    objects_[name] = object;
    return *object;
}

void Stage::remove(std::string const& name) {
    objects_.erase(name);
}

VObject& Stage::operator[](std::string const& name) const {
    return *objects_.at(name);
}

bool Stage::connect(std::string const& consumer, std::string const& input,
                    std::string const& provider, std::string const& parameter) {
    VObject& taker = (*this)[consumer];
    VObject& giver = (*this)[provider];
    SlotPtr const slot = workbench::addInput(taker, input);
    if (!slot)
        return false;
    if (!parameter.empty())
        return taker.connectSlots(slot, giver, giver.slot(parameter));
    bool done = false;
    giver.iterateOutputs(
        [&](SlotPtr const& output) { done = done || taker.connectSlots(slot, giver, output); });
    return done;
}

void Stage::set(std::string const& object, std::string const& parameter, std::string const& text,
                PoolPtr const& in) {
    workbench::setParameter((*this)[object], parameter, text, in);
}

MapSource& Stage::furnish() {
    make("CreateBundle/RadialScalarField", "theBundle");
    make("Strand/Grid", "theGrid");
    make("Strand/Scalarfield", "theField");
    make("Display/OrthoSlice", "FieldSlice");
    make("Legend/ColorLegend", "Legend");
    host("DefaultScene");
    host("Viewer1");
    host("Camera", "CameraControl");
    auto* const map = new MapSource;
    add("map", ObjectPtr(WeakPtr<MapSource, VManagedObjectBase>(map)));
    connect("theGrid", "spacetime", "theBundle");
    connect("theField", "grid", "theGrid");
    connect("FieldSlice", "scalarfield", "theField");
    connect("FieldSlice", "colormap", "map");
    connect("Legend", "colormap", "map");
    connect("DefaultScene", "FieldSlice.renderable", "FieldSlice");
    connect("DefaultScene", "Legend.renderable", "Legend");
    connect("Viewer1", "scene", "DefaultScene");
    set("Viewer1", "size", "200x100");
    return *map;
}

workbench::Image Stage::picture(std::string const& viewer) const {
    return workbench::render((*this)[viewer], pool);
}

std::vector<std::string> slotTexts(VObject const& object) {
    std::vector<std::string> texts;
    for (SlotPtr const& slot : object.slots())
        texts.push_back(slot->name() + (slot->isInput() ? "=" : "->") +
                        slot->ownParameter()->ownValue()->text());
    return texts;
}

}  // namespace tests
