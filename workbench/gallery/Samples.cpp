#include "workbench/gallery/Samples.hpp"

#include <algorithm>
#include <cmath>

#include "workbench/gallery/Light.hpp"

namespace workbench {

namespace {

/// Collects the span of numbers that come one by one.
class SpanCollector {
public:
    void take(double value) {
        if (!std::isfinite(value)) {
            span_.allFinite = false;
            return;
        }
        span_.least = any_ ? std::min(span_.least, value) : value;
        span_.greatest = any_ ? std::max(span_.greatest, value) : value;
        any_ = true;
    }
    Span const& span() const noexcept { return span_; }

private:
    Span span_{0.0, 0.0, true};
    bool any_ = false;
};

}  // namespace

Samples sample(Orlo::Colormap const& map, std::size_t count) {
    Samples samples{double(map.getMin()), double(map.getMax()), {}};
    double const extent = samples.greatest - samples.least;
    samples.colours.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        samples.colours.push_back(map.getColor(
            samples.least + extent * (static_cast<double>(i) + 0.5) / static_cast<double>(count)));
    return samples;
}

Image rampOf(Samples const& samples, int height,
             std::function<Orlo::rgba_float_t(Orlo::rgba_float_t const&)> const& changed) {
    Image image(static_cast<int>(samples.colours.size()), height);
    int x = 0;
    for (Orlo::rgba_float_t const& colour : samples.colours)
        image.fill(x++, 0, 1, height, opaque(changed ? changed(colour) : colour));
    return image;
}

Span componentSpan(Samples const& samples) {
    SpanCollector collector;
    for (Orlo::rgba_float_t const& colour : samples.colours)
        for (double const component : {colour.red(), colour.green(), colour.blue()})
            collector.take(component);
    return collector.span();
}

Span lightnessSpan(Samples const& samples) {
    SpanCollector collector;
    for (Orlo::rgba_float_t const& colour : samples.colours)
        collector.take(lightness(lightOf(colour)));
    return collector.span();
}

}  // namespace workbench
