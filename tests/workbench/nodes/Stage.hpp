/// A small network to try the objects of scenes in.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "host/object/Tincture.hpp"
#include "host/values/TypedSlot.hpp"
#include "workbench/nodes/Port.hpp"
#include "workbench/nodes/SceneCreators.hpp"
#include "workbench/picture/Image.hpp"
#include "workbench/scene/ScalarField.hpp"

namespace tests {

/// A map whose colours tell the scalar that was looked up: red is the scalar,
/// green its opposite, blue a constant. Alpha is 0, as in tables.
class TellingMap : public Orlo::Colormap {
public:
    explicit TellingMap(double blue, int least = 0, int greatest = 1)
        : blue_(blue), least_(least), greatest_(greatest) {}

    int getMin() const override { return least_; }
    int getMax() const override { return greatest_; }
    int getSize() const override { return 256; }
    Tessar::rgba_float_t getColor(double value) const override {
        double const part = (value - least_) / (greatest_ - least_);
        return {part, 1.0 - part, blue_, 0.0};
    }
    std::string getLabel() const override { return {}; }
    std::intptr_t getExtra() const override { return 0; }

private:
    double blue_;
    int least_;
    int greatest_;
};

/// Provides a `TellingMap` and counts how often it was asked to.
class MapSource : public Orlo::Tincture {
public:
    MapSource();

    bool update(Orlo::VRequest& request, double) override;

    int updates = 0;
    int least = 0;
    int greatest = 1;

private:
    Orlo::TypedSlot<double> blue_{this, "blue", 0.5, 0};
};

/// A field whose samples a function gives.
class FunctionField : public workbench::ScalarField {
public:
    using Function = std::function<double(int, int, int)>;

    FunctionField(workbench::UniformGrid const& grid, Function function)
        : ScalarField(grid), function_(std::move(function)) {}

    double sample(int i, int j, int k) const override { return function_(i, j, k); }

private:
    Function function_;
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
    workbench::SceneCreators creators_;
    std::map<std::string, Orlo::ObjectPtr> objects_;
};

/// The names of an object's slots, with the text of each: "name=text" of what
/// can be set, "name->text" of an output.
std::vector<std::string> slotTexts(Orlo::VObject const& object);

/// What an output of an object holds in a pool, after a request.
template <class T>
T provided(Orlo::VObject& object, std::string const& output, Orlo::PoolPtr const& pool) {
    Orlo::VRequest request(pool);
    object.request(request, 0, nullptr, nullptr);
    T value{};
    Orlo::readParameter(*object.slot(output)->parameter(), pool, value);
    return value;
}

}  // namespace tests
