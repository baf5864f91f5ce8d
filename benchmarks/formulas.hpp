/// What the formula maps have to compute, by hand and without a map around it.
#pragma once

#include <map>
#include <string>

#include "host/colormap/rgba_float_t.hpp"

namespace benchmarks {

/// By catalogue key: the mathematics calls and products that one lookup cannot do
/// without, behind a call of a function and with one channel for all.
std::map<std::string, Tessar::rgba_float_t (*)(double)> const& formulas();

}  // namespace benchmarks
