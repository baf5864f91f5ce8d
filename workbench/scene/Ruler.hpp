/// A ruler that shows a range of values.
#pragma once

#include "workbench/common/Interval.hpp"
#include "workbench/scene/Renderable.hpp"
#include "workbench/scene/geometry.hpp"

namespace workbench {

/// How a ruler looks. Lengths are fractions of the picture's.
struct RulerStyle {
    Tessar::rgba_float_t color{1.0F, 1.0F, 1.0F, 1.0F};
    Pair position{0.05, 0.025};
    double width = 0.9;
};

/// A horizontal ruler: labels at the bottom, the line above them, and on it the
/// marks. Nothing is drawn of a range that is not finite.
class Ruler : public Renderable {
public:
    Ruler(Interval const& range, RulerStyle const& style);

    void drawOver(Image& image) const override;

private:
    Interval range_;
    RulerStyle style_;
};

}  // namespace workbench
