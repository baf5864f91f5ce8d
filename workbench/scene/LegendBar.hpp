/// A bar that shows a colour map.
#pragma once

#include <optional>
#include <string>

#include "host/colormap/Colormap.hpp"
#include "workbench/common/Interval.hpp"
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
    /// The labels are those of the map's own domain, or of what stands for it.
    LegendBar(Orlo::ColormapPtr const& map, LegendStyle const& style,
              std::optional<Interval> const& labels = {});

    void drawOver(Image& image) const override;
    std::optional<Reading> readOver(Image const& image, int x, int y) const override;

private:
    Orlo::ColormapPtr map_;
    LegendStyle style_;
    std::optional<Interval> labels_;
};

/// A legend by itself: the bar of a map whose ends stand for that range, as a
/// picture, and as the text of an SVG file.
Image legendPicture(Orlo::ColormapPtr const& map, Interval const& range);
std::string legendSvg(Orlo::Colormap const& map, Interval const& range);

}  // namespace workbench
