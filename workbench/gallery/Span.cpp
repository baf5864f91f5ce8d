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
