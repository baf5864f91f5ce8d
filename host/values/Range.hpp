/// A numeric range.
#pragma once

#include "host/pointers/Functor.hpp"
#include "host/pointers/threads.hpp"

namespace Orlo {

/// A minimum and a maximum; as a function it maps 0 to the one, 1 to the other.
/// The minimum may be the greater one.
class QUARTZ_API Range : public Nucleo::Functor {
public:
    explicit Range(double min = 0.0, double max = 1.0) noexcept : minimum(min), maximum(max) {}
    Range(Range const&) = default;
    Range& operator=(Range const&) = default;
    ~Range() override;

    /// (maximum - minimum) * t + minimum. [reader]
    double operator()(double t) const override;

    bool operator==(Range const& other) const noexcept {
        return minimum == other.minimum && maximum == other.maximum;
    }

    double minimum;
    double maximum;
};

}  // namespace Orlo
