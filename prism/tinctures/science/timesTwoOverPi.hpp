/// A product in extended precision, the same on every processor.
#pragma once

namespace prism {

/// The product with 2/pi as the extended arithmetic of an x87 gives it: with 2/pi
/// of 64 bits, rounded to 64 bits, and that to a double, each time to the nearest
/// and of two to the even one. Zeros, infinities and NaN stay what they are.
///
/// It is computed in integers. The processor's own `long double` has 53 bits on
/// some systems, and on a thread whose control word says so.
double timesTwoOverPi(double x) noexcept;

}  // namespace prism
