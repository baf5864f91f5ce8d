#include "workbench/gallery/Span.hpp"

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
        span_.min = any_ ? std::min(span_.min, value) : value;
        span_.max = any_ ? std::max(span_.max, value) : value;
        any_ = true;
    }
    Span const& span() const noexcept { return span_; }

private:
    Span span_{0.0, 0.0, true};
    bool any_ = false;
};

}  // namespace

Span componentSpan(Samples const& samples) {
    SpanCollector collector;
    for (Orlo::rgba_float_t const& color : samples.colors)
        for (double const component : {color.red(), color.green(), color.blue()})
            collector.take(component);
    return collector.span();
}

Span lightnessSpan(Samples const& samples) {
    SpanCollector collector;
    for (Orlo::rgba_float_t const& color : samples.colors)
        collector.take(lightness(lightOf(color)));
    return collector.span();
}

}  // namespace workbench
