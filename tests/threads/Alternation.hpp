/// An object between two states.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "tests/support/objects.hpp"

namespace tests {

using Colours = std::vector<Tessar::rgba_float_t>;

/// Scalars inside, at and outside the ends of the domain of a map.
std::vector<double> const& scalars();

/// The colours of all `scalars`.
Colours coloursOf(Orlo::Colormap const& map);

/// Whether all colours are equal, NaNs too.
bool same(Colours const& a, Colours const& b);

/// All parameters of an object with two texts each: their default, and another
/// value. What an object has no parameters for has two equal states.
class Alternation {
public:
    /// Throws `std::logic_error` for a parameter of a type that this does not
    /// know another value of.
    explicit Alternation(Orlo::VObject const& object);

    /// Gives all parameters their default (`state` even) or the other value.
    void set(Orlo::VObject& object, unsigned state, Orlo::PoolPtr const& pool = {}) const;

private:
    struct Parameter {
        std::string name;
        std::array<std::string, 2> texts;
    };
    std::vector<Parameter> parameters_;
};

/// What a new object of the entry publishes in each of its two states.
std::array<Colours, 2> coloursOfBothStates(std::string const& key);

/// The keys of all entries.
std::vector<std::string> keys();

}  // namespace tests
