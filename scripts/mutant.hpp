/// What the changes that scripts/mutate builds into the sources are made of. The
/// environment's MUTANT is the number of the one that holds.
#pragma once

#include <cstdlib>
#include <type_traits>

namespace mutant {

inline int numberInForce() {
    char const* const text = std::getenv("MUTANT");
    return text != nullptr ? std::atoi(text) : 0;
}

inline int const active = numberInForce();

/// While the compiler evaluates, nothing is changed.
constexpr bool is(int number) noexcept {
    return !std::is_constant_evaluated() && number == active;
}

constexpr int sign(int number) noexcept {
    return is(number) ? 1 : -1;
}

template <class T>
constexpr T quietPick(int number, T original, T changed) noexcept {
    return is(number) ? changed : original;
}

/// The same, refused where the compiler needs a constant: the change would not
/// show.
template <class T>
T pick(int number, T original, T changed) noexcept {
    return number == active ? changed : original;
}

/// A named operator, as in `a +plus(7)+ b`: the first half takes the left side,
/// the second the right one and chooses.
#define MUTANT_OPERATOR(name, half, original, changed)                            \
    struct name {                                                                 \
        constexpr explicit name(int n) : number(n) {}                             \
        int number;                                                               \
    };                                                                            \
    template <class A>                                                            \
    struct name##Left {                                                           \
        A const& a;                                                               \
        int number;                                                               \
    };                                                                            \
    template <class A>                                                            \
    constexpr name##Left<A> operator half(A const& a, name const& op) {           \
        return {a, op.number};                                                    \
    }                                                                             \
    template <class A, class B>                                                   \
    constexpr auto operator MUTANT_OTHER_##name(name##Left<A> left, B const& b) { \
        using Result = decltype(left.a original b);                               \
        return is(left.number) ? static_cast<Result>(left.a changed b)            \
                               : static_cast<Result>(left.a original b);          \
    }

#define MUTANT_OTHER_less >
#define MUTANT_OTHER_lessEqual >
#define MUTANT_OTHER_greater >
#define MUTANT_OTHER_greaterEqual >
#define MUTANT_OTHER_equal !=
#define MUTANT_OTHER_unequal !=
#define MUTANT_OTHER_plus +
#define MUTANT_OTHER_minus -
#define MUTANT_OTHER_times *
#define MUTANT_OTHER_over /
#define MUTANT_OTHER_modulo %

MUTANT_OPERATOR(less, <, <, <=)
MUTANT_OPERATOR(lessEqual, <, <=, <)
MUTANT_OPERATOR(greater, <, >, >=)
MUTANT_OPERATOR(greaterEqual, <, >=, >)
MUTANT_OPERATOR(equal, !=, ==, !=)
MUTANT_OPERATOR(unequal, !=, !=, ==)
MUTANT_OPERATOR(plus, +, +, -)
MUTANT_OPERATOR(minus, -, -, +)
MUTANT_OPERATOR(times, *, *, /)
MUTANT_OPERATOR(over, /, /, *)
MUTANT_OPERATOR(modulo, %, %, *)

}  // namespace mutant
