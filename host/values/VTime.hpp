/// A time with its bounds.
#pragma once

#include <string>

#include "host/pointers/import.hpp"

namespace Orlo {

/// A point of time within a range, with the width of one step.
///
/// Units: whatever the network counts its time in. The three texts are for
/// display: the unit, the format, and a remark. Text form: `0[0,1]@0.1`.
class QUARTZ_API VTime {
public:
    /// Time 0 in the range 0 to 1, step 0.
    VTime();
    /// Without a step.
    VTime(double time, double min, double max);
    VTime(double time, double min, double max, double stepWidth, std::string const& unitText,
          std::string const& formatText, std::string const& remarkText);
    ~VTime();

    VTime(VTime const&);
    VTime& operator=(VTime const&);

    bool operator==(VTime const&) const = default;

    double value = 0.0;
    double minimum = 0.0;
    double maximum = 1.0;
    double step = 0.0;
    std::string unit, format, remark;
};

}  // namespace Orlo
