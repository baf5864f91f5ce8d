/// Texts for parameters, right and wrong ones.
#pragma once

#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "host/values/VParameter.hpp"
#include "workbench/validate/Test.hpp"

namespace workbench::validate {

bool isUtf8(std::string_view text);

/// A text that the parameter takes, at random: numbers of every size and the ends of
/// what is advised, words of an Enum, flags on and off. Whole numbers stay small where
/// no greatest one is advised, since a count may cost what it counts.
std::string randomText(Orlo::VParameter const& parameter, Trial& trial);

/// The texts of the ends: those that are advised, and those of the type. Only such as
/// the parameter takes.
std::vector<std::string> textsAtTheEnds(Orlo::VParameter const& parameter);

/// Another text that the parameter takes and that is another value than its default;
/// empty if none is found.
std::string otherText(Orlo::VParameter const& parameter);

/// Texts that nobody would write: empty, huge, random bytes, right ones with more around
/// them.
std::vector<std::string> hostileTexts(std::string const& right, Trial& trial);

/// The advised end of that name, "min" or "max", as a text; empty if there is none.
std::string advice(Orlo::VParameter const& parameter, std::string const& name);

}  // namespace workbench::validate
