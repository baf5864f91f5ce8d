/// Scalars on a grid.
#pragma once

#include <memory>

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
    double position(double coordinate) const {
        return (coordinate / halfEdge + 1.0) * 0.5 * (samples - 1);
    }

    bool operator==(UniformGrid const&) const = default;
};

/// A scalar at each sample of a grid. Threads: never changes; any thread reads.
class Field {
public:
    explicit Field(UniformGrid const& grid) : grid_(grid) {}
    virtual ~Field() = default;

    static constexpr char const* Description = "A Scalarfield Object.";

    UniformGrid const& grid() const noexcept { return grid_; }
    /// The sample of an index in x, y and z. [any]
    virtual double sample(int i, int j, int k) const = 0;

private:
    UniformGrid grid_;
};

using FieldPtr = std::shared_ptr<Field const>;

}  // namespace workbench
