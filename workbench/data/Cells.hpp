/// Cells of a grid in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <variant>
#include <vector>

namespace workbench {

/// A rectangle of cells, counted from the left and from the top.
struct Window {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    std::size_t size() const {
        return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    }

    bool operator==(Window const&) const = default;
};

/// What a window of a grid holds, row by row from the top. The values are as
/// they are stored, in floats where these hold every value of the stored type;
/// scale and offset take them to the units of the data.
struct Cells {
    Window window;
    std::variant<std::vector<float>, std::vector<double>> values;
    std::vector<std::uint8_t> valid;  ///< 0 for a cell without data; empty: all have data
    bool isVoid = false;              ///< no cell has data, and none is read
    double scale = 1.0;
    double offset = 0.0;

    /// Hands over every value in its units, in order; NaN for a cell without
    /// data.
    template <class Take>
    void forEach(Take const& take) const {
        std::visit([&](auto const& stored) { forEachOf(stored, take); }, values);
    }

private:
    template <class Stored, class Take>
    void forEachOf(std::vector<Stored> const& stored, Take const& take) const {
        constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();
        bool const isScaled = scale != 1.0 || offset != 0.0;
        for (std::size_t i = 0, count = window.size(); i < count; ++i) {
            bool const hasData = !isVoid && (valid.empty() || valid[i] != 0);
            double const value = hasData ? double(stored[i]) : noNumber;
            take(isScaled ? value * scale + offset : value);
        }
    }
};

}  // namespace workbench
