#include "host/values/VTime.hpp"

namespace Orlo {

VTime::VTime() = default;
VTime::VTime(double time, double min, double max) : value(time), minimum(min), maximum(max) {}
VTime::VTime(double time, double min, double max, double stepWidth, std::string const& unitText,
             std::string const& formatText, std::string const& remarkText)
    : value(time),
      minimum(min),
      maximum(max),
      step(stepWidth),
      unit(unitText),
      format(formatText),
      remark(remarkText) {}
VTime::~VTime() = default;
VTime::VTime(VTime const&) = default;
VTime& VTime::operator=(VTime const&) = default;

}  // namespace Orlo
