/// Objects made by key, brought up to date, and read.
#pragma once

#include <string>

#include "host/creators/VCreatorBase.hpp"
#include "host/object/VObject.hpp"
#include "runtime/vellum/ColormapValue.hpp"

namespace workbench {

/// Makes an object of the catalogue's entry of that full key. Throws `CallError`
/// with the nearest keys if there is none. [host]
Orlo::ObjectPtr create(std::string const& key, std::string const& name = {},
                       Orlo::PreferencesPtr const& preferences = {},
                       Nucleo::Intercube const& context = {});

/// Makes an object of an entry. What a plug-in throws comes as an error of the host's
/// own, here and below, so that it outlives the plug-in's library. [host]
Orlo::ObjectPtr create(Orlo::WeakCreatorPtr const& entry, std::string const& name = {},
                       Orlo::PreferencesPtr const& preferences = {},
                       Nucleo::Intercube const& context = {});

/// Brings an object up to date in a pool, and before it all that it reads.
/// [host]
void request(Orlo::VObject& object, Orlo::PoolPtr const& pool);

/// The map that stands in the first output that holds one; empty if none does.
/// [reader]
Orlo::ColormapPtr mapOf(Orlo::VObject const& object, Orlo::PoolPtr const& pool);

/// Brings an object up to date, and gives its map. [host]
Orlo::ColormapPtr update(Orlo::VObject& object, Orlo::PoolPtr const& pool);

}  // namespace workbench
