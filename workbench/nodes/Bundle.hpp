/// Data sets, and what networks take out of them.
#pragma once

#include <memory>
#include <string>

#include "workbench/scene/Field.hpp"

namespace workbench {

/// A data set: named grids, named fields on them, over time. Threads: never
/// changes; any thread reads.
class Bundle {
public:
    virtual ~Bundle() = default;

    static constexpr char const* Description = "A Bundle Object.";

    /// Whether there is a grid of that name. [any]
    virtual bool hasGrid(std::string const& grid) const = 0;
    /// The field of that name on that grid, as it is at a time; empty if there
    /// is none. [any]
    virtual FieldPtr field(std::string const& grid, std::string const& name, double time) const = 0;
};

using BundlePtr = std::shared_ptr<Bundle const>;

/// One grid of a bundle.
struct NamedGrid {
    BundlePtr bundle;
    std::string name;

    static constexpr char const* Description = "A Grid Object.";
};

using GridPtr = std::shared_ptr<NamedGrid const>;

/// Coordinates on a grid. The host has Cartesian ones alone, so that a chart
/// says no more than whose they are.
struct Chart {
    GridPtr atlas;

    static constexpr char const* Description = "A Chart Object.";
};

using ChartPtr = std::shared_ptr<Chart const>;

}  // namespace workbench
