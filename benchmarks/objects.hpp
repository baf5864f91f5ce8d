/// The objects of the loaded plug-in.
#pragma once

#include <string>
#include <vector>

#include "host/object/Tincture.hpp"

namespace benchmarks {

/// The keys of all entries.
std::vector<std::string> keys();

Orlo::PoolPtr makePool();

/// A new object of an entry.
Orlo::ObjectPtr create(std::string const& key);

/// Brings the object up to date by a request, and gives its map.
Orlo::ColormapPtr update(Orlo::VObject& object, Orlo::PoolPtr const& pool);

}  // namespace benchmarks
