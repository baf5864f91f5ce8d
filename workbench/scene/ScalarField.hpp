/// Data sets: grids, and the scalars on them.
#pragma once

#include <memory>
#include <string>

namespace workbench {

/// As many samples in each direction, in equal steps, on a cube about the
/// origin.
struct UniformGrid {
    int samples = 2;        ///< in each direction, at least 2
    double halfEdge = 1.0;  ///< from the origin to a face of the cube; above 0

    /// The coordinate of the samples of an index from 0 to `samples` - 1.
    double coordinate(int index) const {
        return halfEdge * ((2.0 * index - (samples - 1)) / (samples - 1));
    }
    /// The place of a coordinate among the indices: 0 at the lower face,
    /// `samples` - 1 at the upper one.
    double place(double coordinate) const {
        return (coordinate / halfEdge + 1.0) * 0.5 * (samples - 1);
    }

    bool operator==(UniformGrid const&) const = default;
};

/// A scalar at each sample of a grid. Threads: never changes; any thread reads.
class ScalarField {
public:
    explicit ScalarField(UniformGrid const& grid) : grid_(grid) {}
    virtual ~ScalarField() = default;

    static constexpr char const* Description = "A Scalarfield Object.";

    UniformGrid const& grid() const noexcept { return grid_; }
    /// The sample of an index in x, y and z. [any]
    virtual double sample(int i, int j, int k) const = 0;

private:
    UniformGrid grid_;
};

using FieldPtr = std::shared_ptr<ScalarField const>;

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
