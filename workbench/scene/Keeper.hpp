/// Objects that keep whatever a script sets on them.
#pragma once

#include <string>

#include "host/object/VObject.hpp"

namespace workbench {

/// Base of the host's own objects: each takes parameters that it does not know
/// and keeps them, so that nothing that a script sets is lost.
///
/// Threads: as `VObject`.
class SceneObject : public Orlo::VObject {
public:
    SceneObject(std::string const& name, int kind, Orlo::PreferencesPtr const& preferences);

    /// Adds an input that the object was not made with; empty if it takes none
    /// of that name, as here. [host]
    virtual Orlo::SlotPtr makeInput(std::string const& name);
    /// There is nothing to compute. [updater]
    bool update(Orlo::VRequest& request, double precision) override;
    /// Inputs made by `makeAnyInput` take every output.
    bool allowParameterReplacement(Orlo::SlotPtr const& slot,
                                   Orlo::ParameterPtr const& replacement) const override;

protected:
    /// An input that takes every output; nobody reads it.
    Orlo::SlotPtr makeAnyInput(std::string const& name);
};

/// A host object whose behaviour no picture needs: it keeps its parameters and
/// connections, and provides itself as the output "object".
class Keeper : public SceneObject {
public:
    Keeper(std::string const& name, int kind = 0, Orlo::PreferencesPtr const& preferences = {});

    Orlo::SlotPtr makeInput(std::string const& name) override { return makeAnyInput(name); }
};

/// Whether the object takes parameters that it does not know. [any]
bool keepsAll(Orlo::VObject const& object);

/// Adds a parameter whose type is that of the text's form; from then on the
/// parameter takes texts of this form only. A parameter of that name that is
/// there already stays as it is and is given back. Empty if the object keeps
/// no unknown parameters. [host]
Orlo::SlotPtr addKept(Orlo::VObject& object, std::string const& name, std::string const& text);

/// The input of that name, made now if the object takes one: `X.renderable` of
/// a scene, any name of a keeper. Empty if it takes none of that name. [host]
Orlo::SlotPtr addInput(Orlo::VObject& object, std::string const& name);

}  // namespace workbench
