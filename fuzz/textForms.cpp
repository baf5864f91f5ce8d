/// Random texts for the value types, those of saved networks among them.
///
/// An accepted text, written and read again where the first one was, gives the
/// same value; a refused one leaves the value as it was. One input is a run of
/// texts, divided by zero bytes, for one value.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "host/values/VValueTrait.hpp"
#include "runtime/lattice/TypeRegistry.hpp"
#include "workbench/nodes/values.hpp"

using namespace Orlo;
using namespace workbench;

namespace {

bool same(double a, double b) {
    return a == b ? std::signbit(a) == std::signbit(b) : std::isnan(a) && std::isnan(b);
}
bool same(int a, int b) {
    return a == b;
}
bool same(Tessar::rgba_float_t const& a, Tessar::rgba_float_t const& b) {
    for (std::size_t i = 0; i < a.size(); ++i)
        if (!same(double{a[i]}, double{b[i]}))
            return false;
    return true;
}
bool same(Range const& a, Range const& b) {
    return same(a.minimum, b.minimum) && same(a.maximum, b.maximum);
}
bool same(VTime const& a, VTime const& b) {
    return same(a.value, b.value) && same(a.minimum, b.minimum) && same(a.maximum, b.maximum) &&
           same(a.step, b.step);
}
bool same(Point const& a, Point const& b) {
    return same(a.x, b.x) && same(a.y, b.y) && same(a.z, b.z);
}
bool same(Box const& a, Box const& b) {
    return same(a.min, b.min) && same(a.max, b.max);
}
bool same(Pair const& a, Pair const& b) {
    return same(a.first, b.first) && same(a.second, b.second);
}
/// Any other type says itself what is equal.
template <class T>
bool same(T const& a, T const& b) {
    return a == b;
}

[[noreturn]] void fail(char const* what, std::string const& text, std::string const& written) {
    std::fprintf(stderr, "%s: read '%s', written '%s'\n", what, text.c_str(), written.c_str());
    std::abort();
}

template <class T>
void check(T& value, std::string const& text) {
    using Trait = VValueTrait<T>;
    T again = value;
    std::string const before = Trait::Text(value);
    if (!Trait::setValueFromText(value, text)) {
        if (Trait::Text(value) != before)
            fail("a refused text changed the value", text, Trait::Text(value));
        return;
    }
    std::string const written = Trait::Text(value);
    if (!Trait::setValueFromText(again, written))
        fail("what was written cannot be read", text, written);
    if (!same(value, again) || Trait::Text(again) != written)
        fail("what was written reads as another value", text, written);
}

/// Calls a function with all texts of the input, one after the other.
template <class Function>
void forEachText(std::string const& input, Function const& function) {
    for (std::size_t start = 0; start <= input.size();) {
        std::size_t const end = std::min(input.find('\0', start), input.size());
        function(input.substr(start, end - start));
        start = end + 1;
    }
}

/// All of them on one value.
template <class T>
void checkAll(T value, std::string const& input) {
    forEachText(input, [&](std::string const& text) { check(value, text); });
}

/// The type that a text seems to be of reads it.
void checkInferred(std::string const& text) {
    std::string const type = inferType(text);
    bool read = false;
    auto const creator = findValueCreator(type);
    if (!creator || !creator->create(text, read) || !read)
        fail("the type that was inferred does not read the text", text, type);
}

Enum yesOrNo() {
    return Enum().addCase("no").addCase("yes");
}

}  // namespace

/// The first byte chooses the type and the value at the start.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size == 0)
        return 0;
    std::string const input(reinterpret_cast<char const*>(data) + 1, size - 1);
    switch (data[0]) {
    case 'd':
        checkAll(0.5, input);
        break;
    case 'i':
        checkAll(7, input);
        break;
    case 'c':
        checkAll(Tessar::rgba_float_t(1, 0, 0.5, 1), input);
        break;
    case 'e':
        checkAll(yesOrNo(), input);
        break;
    case 'E':
        checkAll(Enum(), input);
        break;
    case 'f':
        checkAll(FlagList("-inverse log", ' '), input);
        break;
    case 'F':
        checkAll(FlagList(), input);
        break;
    case 'r':
        checkAll(Range(0, 1), input);
        break;
    case 't':
        checkAll(VTime(0, 0, 1), input);
        break;
    case 's':
        checkAll(std::string("text"), input);
        break;
    case 'b':
        checkAll(true, input);
        break;
    case 'p':
        checkAll(Point{0, 2.5, 1}, input);
        break;
    case 'P':
        checkAll(Pair{1046, 650}, input);
        break;
    case 'x':
        checkAll(Box{{0, 0, 0}, {1, 1, 1}}, input);
        break;
    case 'I':
        checkAll(Identifier{"radialfield", "radialfield"}, input);
        break;
    case 'n':
        checkAll(Nothing(), input);
        break;
    case '?':
        forEachText(input, checkInferred);
        break;
    default:
        break;
    }
    return 0;
}
