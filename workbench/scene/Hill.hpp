/// A field that is computed.
#pragma once

#include "workbench/scene/Field.hpp"

namespace workbench {

/// One hill: `height` in the middle, level 0 at the edges of the middle plane
/// and beyond, level and smooth at both. `age`, from 0 to 1, is how far it has
/// sunk.
///
/// With u = r^2 / (2 halfEdge^2) it is height (1 - u)^2 / (1 + 8 age u), which
/// takes no operation that depends on the system.
class Hill : public Field {
public:
    Hill(UniformGrid const& grid, double height, double age)
        : Field(grid), height_(height), age_(age) {}

    double sample(int i, int j, int k) const override;

private:
    double height_;
    double age_;
};

}  // namespace workbench
