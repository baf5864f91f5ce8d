/// A bar that shows a colour map.
#pragma once

#include "host/colormap/Colormap.hpp"
#include "workbench/scene/Renderable.hpp"
#include "workbench/scene/geometry.hpp"

namespace workbench {

/// How a bar looks. Lengths are fractions of the picture's.
struct LegendStyle {
    Tessar::rgba_float_t bordercolor{1.0F, 1.0F, 1.0F, 1.0F};
    Pair position{0.03, 0.03};
    double height = 0.9;
    double width = 0.05;
};

/// The bar of a map, its least value at the bottom: each row of pixels is the
/// colour of the value at its middle. Without a map only the frame is drawn.
class LegendBar : public Renderable {
public:
    LegendBar(Orlo::ColormapPtr const& map, LegendStyle const& style);

    void drawOver(Image& image) const override;

private:
    Orlo::ColormapPtr map_;
    LegendStyle style_;
};

}  // namespace workbench
