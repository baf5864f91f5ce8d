#include "host/values/Range.hpp"

namespace Orlo {

Range::~Range() = default;

double Range::operator()(double t) const {
    return (maximum - minimum) * t + minimum;
}

}  // namespace Orlo
