/// The six value types of colour-map parameters, with two values of each.
#pragma once

#include <gtest/gtest.h>

#include "host/pointers/Typename.hpp"
#include "host/values/VValueTrait.hpp"

namespace tests {

using SixTypes =
    testing::Types<double, int, Tessar::rgba_float_t, Orlo::Enum, Orlo::FlagList, Orlo::Range>;

/// Two different values of a type, and a text that means the first.
template <class T>
struct Sample;

template <>
struct Sample<double> {
    static double first() { return 0.1; }
    static double second() { return -2.5e300; }
    static char const* text() { return "0.1"; }
};

template <>
struct Sample<int> {
    static int first() { return 256; }
    static int second() { return -1; }
    static char const* text() { return "256"; }
};

template <>
struct Sample<Tessar::rgba_float_t> {
    static Tessar::rgba_float_t first() { return {1, 0.6, 0, 1}; }
    static Tessar::rgba_float_t second() { return {-0.25, 2, 0, 0}; }
    static char const* text() { return "(1,0.6,0,1)"; }
};

template <>
struct Sample<Orlo::Enum> {
    static Orlo::Enum words() { return Orlo::Enum().addCase("no").addCase("yes"); }
    static Orlo::Enum first() { return words(); }
    static Orlo::Enum second() { return words().select("yes"); }
    static char const* text() { return "no{no}{yes}"; }
};

template <>
struct Sample<Orlo::FlagList> {
    static Orlo::FlagList first() { return {"-inverse wide", ' '}; }
    static Orlo::FlagList second() { return {"inverse wide", ' '}; }
    static char const* text() { return " -inverse wide"; }
};

template <>
struct Sample<Orlo::Range> {
    static Orlo::Range first() { return Orlo::Range(0.0, 1.0); }
    static Orlo::Range second() { return Orlo::Range(5.0, -5.0); }
    static char const* text() { return "0,1"; }
};

/// Names typed tests after their types.
struct SixNames {
    template <class T>
    static std::string GetName(int) {
        std::string const name = Nucleo::Typename(typeid(T));
        std::string const last = name.substr(name.rfind(':') + 1);
        return name.find('<') == std::string::npos ? last : "colour";
    }
};

}  // namespace tests
