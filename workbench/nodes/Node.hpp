/// The base of all nodes.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "host/object/VObject.hpp"

namespace workbench {

/// Why an object shows or provides nothing, though it was asked to.
struct Fault {
    std::string parameter = {};  ///< what is wrong, or what is missing
    std::string reason = {};     ///< empty: there is no fault
};

/// Base of the objects that the workbench itself provides: each takes parameters
/// that it does not know and keeps them, so that nothing that a script sets is
/// lost.
///
/// Threads: as `VObject`.
class Node : public Orlo::VObject {
public:
    Node(std::string const& name, int kind, Orlo::PreferencesPtr const& preferences);

    /// Adds an input that the object was not made with; empty if it takes none
    /// of that name, as here. [host]
    virtual Orlo::SlotPtr makeInput(std::string const& name);
    /// Here there is nothing to compute. [updater]
    bool update(Orlo::VRequest& request, double precision) override;
    /// As for every object, but an input made by `makeAnyInput` takes any
    /// output. [host]
    bool allowParameterReplacement(Orlo::SlotPtr const& slot,
                                   Orlo::ParameterPtr const& replacement) const override;

    /// What the last update found wrong. [updater]
    Fault const& fault() const noexcept { return fault_; }

protected:
    /// An input that takes any output; nobody reads it.
    Orlo::SlotPtr makeAnyInput(std::string const& name);
    /// What the update that ends finds wrong. [updater]
    void setFault(Fault fault) { fault_ = std::move(fault); }

private:
    Fault fault_;
};

/// Whether the object takes parameters that it does not know. [any]
bool keepsAll(Orlo::VObject const& object);

/// Adds a parameter whose type is that of the text's form, with the text's
/// value; from then on the parameter takes texts of this form only. An input of
/// that name that is there already stays as it is and is given back. Empty if
/// the object keeps no unknown parameters, or has an output of that name.
/// [host]
Orlo::SlotPtr addKept(Orlo::VObject& object, std::string const& name, std::string const& text);

/// Makes a kept parameter one that takes any text from now on; its values, also
/// those in the pools, stay as their texts. What was connected to it is so no
/// longer. [host]
void keepAsText(Orlo::VObject& object, std::string const& name,
                std::vector<Orlo::PoolPtr> const& pools);

/// The input of that name, made now if the object takes one: `X.renderable` of
/// a scene, any name of a host object. Empty if it takes none of that name.
/// [host]
Orlo::SlotPtr addInput(Orlo::VObject& object, std::string const& name);

}  // namespace workbench
