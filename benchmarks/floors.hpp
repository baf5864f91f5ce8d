/// The least that a lookup can cost.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "host/colormap/rgba_float_t.hpp"

namespace benchmarks {

using Colors = std::vector<Tessar::rgba_float_t>;

/// The table lookup, written by hand where it is used. For numbers alone that
/// an `int` holds when they are scaled.
inline Tessar::rgba_float_t const& row(Colors const& table, double value) {
    int const last = static_cast<int>(table.size()) - 1;
    int i = static_cast<int>(value * static_cast<double>(last + 1) + 0.5);
    i = i > last ? last : i;
    i = i < 0 ? 0 : i;
    return table[static_cast<std::size_t>(i)];
}

/// The same behind a virtual call.
class Lookup {
public:
    virtual ~Lookup() = default;
    virtual Tessar::rgba_float_t getColor(double value) const = 0;
};

/// Made in another source, so that the compiler cannot see through the call.
std::unique_ptr<Lookup> makeTableLookup(Colors table);
/// Always the same colour: the call and nothing else.
std::unique_ptr<Lookup> makeEmptyLookup();

}  // namespace benchmarks
