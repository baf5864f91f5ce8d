/// A small network to try the objects of scenes in.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "host/object/Tincture.hpp"
#include "host/values/TypedSlot.hpp"
#include "tests/workbench/scene/telling.hpp"
#include "workbench/nodes/Bundle.hpp"
#include "workbench/nodes/NodeCreators.hpp"
#include "workbench/nodes/Port.hpp"
#include "workbench/picture/Image.hpp"
#include "workbench/session/objects.hpp"

namespace tests {

/// Provides a `TellingMap` and counts how often it was asked to.
class MapSource : public Orlo::Tincture {
public:
    MapSource();

    bool update(Orlo::VRequest& request, double) override;

    int updates = 0;
    int min = 0;
    int max = 1;

private:
    Orlo::TypedSlot<double> blue_{this, "blue", 0.5, 0};
};

/// Provides a field.
class FieldSource : public Orlo::VObject {
public:
    explicit FieldSource(workbench::FieldPtr const& field);

    bool update(Orlo::VRequest& request, double) override;

private:
    workbench::FieldPtr provided_;
    workbench::Output<workbench::FieldPtr> output_{this, "field"};
};

/// Objects by name, the host's kinds in the catalogue, and one context.
class Stage {
public:
    Stage();
    ~Stage();

    /// Makes an object by its catalogue key.
    Orlo::VObject& make(std::string const& key, std::string const& name);
    /// Finds, or makes, an object of the host.
    Orlo::VObject& host(std::string const& name, std::string const& kind = {});
    /// Takes in an object that a test has made.
    Orlo::VObject& add(std::string const& name, Orlo::ObjectPtr const& object);
    /// Lets go of an object.
    void remove(std::string const& name);

    Orlo::VObject& operator[](std::string const& name) const;

    /// Connects an input, made if need be, to the first output that fits, or
    /// to a parameter. False if that is not possible.
    bool connect(std::string const& consumer, std::string const& input, std::string const& provider,
                 std::string const& parameter = {});

    /// Sets a parameter of an object, in a pool if one is given.
    void set(std::string const& object, std::string const& parameter, std::string const& text,
             Orlo::PoolPtr const& in = {});

    /// A bundle, its field, a map, a slice and a legend in a scene before
    /// "Viewer1", under their usual names; the map is a `MapSource`.
    MapSource& furnish();

    /// The picture of a viewer in the stage's pool.
    workbench::Image picture(std::string const& viewer = "Viewer1") const;

    Orlo::PoolPtr const pool = new Orlo::ValuePool("Viewer1");
    Nucleo::Intercube const context{};

private:
    workbench::NodeCreators creators_;
    std::map<std::string, Orlo::ObjectPtr> objects_;
};

/// The names of an object's slots, with the text of each: "name=text" of what
/// can be set, "name->text" of an output.
std::vector<std::string> slotTexts(Orlo::VObject const& object);

/// What an output of an object holds in a pool, after a request.
template <class T>
T provided(Orlo::VObject& object, std::string const& output, Orlo::PoolPtr const& pool) {
    workbench::request(object, pool);
    T value{};
    Orlo::readParameter(*object.slot(output)->parameter(), pool, value);
    return value;
}

}  // namespace tests
