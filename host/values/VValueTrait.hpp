/// Text forms of the value types.
#pragma once

#include <string>

#include "host/colormap/rgba_float_t.hpp"
#include "host/pointers/threads.hpp"
#include "host/values/Enum.hpp"
#include "host/values/FlagList.hpp"
#include "host/values/Range.hpp"
#include "host/values/VTime.hpp"

namespace Orlo {

/// How a value type is written as text and read from it.
///
/// `setValueFromText` reads the whole text or fails and leaves the value as it
/// was. `Text` writes the shortest form that reads back to the same value. No
/// locale plays a part. [any]
template <class T>
struct VValueTrait;

/// `45`, `0.1`, `-2.5e-06`, `inf`, `nan`.
template <>
struct QUARTZ_API VValueTrait<double> {
    static bool setValueFromText(double& value, std::string const& text);
    static std::string Text(double const& value);
};

/// `256`, `-1`.
template <>
struct QUARTZ_API VValueTrait<int> {
    static bool setValueFromText(int& value, std::string const& text);
    static std::string Text(int const& value);
};

/// `(1,0.6,0,1)`: red, green, blue, alpha.
template <>
struct QUARTZ_API VValueTrait<Tessar::rgba_float_t> {
    static bool setValueFromText(Tessar::rgba_float_t& value, std::string const& text);
    static std::string Text(Tessar::rgba_float_t const& value);
};

/// `no{no}{yes}`: the selected word, then every word in braces. On reading, a
/// bare word selects among those that the value has; the long form makes a new
/// list if the value has none, and must name the same words otherwise. No word in
/// front of the braces selects none, or the empty word where the list has one.
template <>
struct QUARTZ_API VValueTrait<Enum> {
    static bool setValueFromText(Enum& value, std::string const& text);
    static std::string Text(Enum const& value);
};

/// ` -inverse`: each flag behind the separator of the list that is written or
/// read into. On reading, the text replaces the list; where the value has flags
/// already, an unknown word is refused.
template <>
struct QUARTZ_API VValueTrait<FlagList> {
    static bool setValueFromText(FlagList& value, std::string const& text);
    static std::string Text(FlagList const& value);
};

/// `0,1`: minimum and maximum.
template <>
struct QUARTZ_API VValueTrait<Range> {
    static bool setValueFromText(Range& value, std::string const& text);
    static std::string Text(Range const& value);
};

/// `0[0,1]@0.1`: the time, its range, the step.
template <>
struct QUARTZ_API VValueTrait<VTime> {
    static bool setValueFromText(VTime& value, std::string const& text);
    static std::string Text(VTime const& value);
};

/// Any text, as it stands.
template <>
struct QUARTZ_API VValueTrait<std::string> {
    static bool setValueFromText(std::string& value, std::string const& text);
    static std::string Text(std::string const& value);
};

}  // namespace Orlo
