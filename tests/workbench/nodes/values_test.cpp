#include "workbench/nodes/values.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <vector>

#include "host/pointers/Typename.hpp"
#include "host/values/TypedSlot.hpp"
#include "runtime/lattice/TypeRegistry.hpp"

using namespace Orlo;
using namespace workbench;

namespace {

struct Form {
    std::type_info const& type;
    char const* text;
};

/// Texts as saved networks have them: each is written as it was read.
Form const GoodForms[] = {
    {typeid(bool), "true"},
    {typeid(bool), "false"},
    {typeid(double), "45"},
    {typeid(double), "0.199999980000002"},
    {typeid(double), "9.99999899420345e-06"},
    {typeid(double), "-3"},
    {typeid(double), "inf"},
    {typeid(Point), "{0,2.43229222888432,1}"},
    {typeid(Point), "{-1,1e-07,1e+30}"},
    {typeid(Box), "[{0,0,0};{0,0,0}]"},
    {typeid(Box), "[{-1,-2.5,-3};{1,2.5,3}]"},
    {typeid(Range), "0,1"},
    {typeid(Range), "1,-1"},
    {typeid(VTime), "0[0,1]@0.1"},
    {typeid(Tessar::rgba_float_t), "(1,1,1,1)"},
    {typeid(Enum), "Interpolated{Discrete}{Interpolated}{Smooth}"},
    {typeid(Enum), "Y{X}{Y}{Z}"},
    {typeid(FlagList), " -Orthographic"},
    {typeid(FlagList), " -Detached Sorted"},
    {typeid(Pair), "1046x650"},
    {typeid(Pair), "0.03x0.03"},
    {typeid(Identifier), "radialfield@radialfield"},
    {typeid(Nothing), ""},
    {typeid(std::string), "A TransformOperator Object."},
    {typeid(std::string), "A Frame buffer."},
};

TEST(TextForms, EachIsRecognisedAndWrittenAsItWasRead) {
    for (Form const& form : GoodForms) {
        std::string const type = inferType(form.text);
        EXPECT_EQ(type, Nucleo::Typename(form.type)) << form.text;
        bool ok = false;
        ValuePtr const value = findValueCreator(type)->create(form.text, ok);
        EXPECT_TRUE(ok) << form.text;
        EXPECT_EQ(value->text(), form.text);
    }
}

TEST(TextForms, NoneIsReadAsAnother) {
    for (Form const& form : GoodForms)
        for (Form const& other : GoodForms) {
            if (form.type == other.type || form.type == typeid(std::string) ||
                form.type == typeid(Enum) || form.type == typeid(FlagList))
                continue;
            bool ok = true;
            findValueCreator(inferType(form.text))->create(other.text, ok);
            EXPECT_FALSE(ok) << other.text << " as " << Nucleo::Typename(form.type);
        }
}

struct Likeness {
    char const* text;
    std::type_info const& type;
};

TEST(TextForms, WhatIsAlmostOfAFormIsAText) {
    Likeness const likenesses[] = {
        {"True", typeid(std::string)},
        {"45 ", typeid(std::string)},
        {" 45", typeid(FlagList)},
        {"{0,1}", typeid(std::string)},
        {"{0,1,2", typeid(std::string)},
        {"{0,1,2}}", typeid(std::string)},
        {"[{0,0,0}]", typeid(std::string)},
        {"0,1,2", typeid(std::string)},
        {"0[0,1]", typeid(std::string)},
        {"(1,1,1)", typeid(std::string)},
        {"x650", typeid(std::string)},
        {"1046x", typeid(std::string)},
        {"1046 x 650", typeid(std::string)},
        {"a@b@c", typeid(std::string)},
        {"@b", typeid(std::string)},
        {"a@", typeid(std::string)},
        {"a b@c", typeid(std::string)},
        {"no{yes}", typeid(std::string)},
        {"{yes}{no}", typeid(std::string)},
        {"word", typeid(std::string)},
        {" ", typeid(std::string)},
        {" -", typeid(std::string)},
        {"A word {like} this", typeid(std::string)},
    };
    for (Likeness const& each : likenesses)
        EXPECT_EQ(inferType(each.text), Nucleo::Typename(each.type)) << each.text;
}

template <class T>
struct BadTexts {
    T before;
    std::vector<std::string> texts;
};

template <class T>
void expectRefused(BadTexts<T> const& bad) {
    for (std::string const& text : bad.texts) {
        T value = bad.before;
        EXPECT_FALSE(VValueTrait<T>::setValueFromText(value, text)) << text;
        EXPECT_EQ(value, bad.before) << text;
    }
}

TEST(TextForms, ABadTextChangesNothing) {
    expectRefused<bool>({true, {"", "True", "1", "false ", " true", "truefalse"}});
    expectRefused<Point>({{1, 2, 3},
                          {"", "{}", "{1,2}", "{1,2,3,4}", "{1,2,3", "1,2,3", "{1, 2,3}",
                           "{1,2,3} ", "{1,2,x}", "{+1,2,3}", "{1e999,0,0}"}});
    expectRefused<Box>({{{1, 2, 3}, {4, 5, 6}},
                        {"", "[]", "[{0,0,0}]", "[{0,0,0};{0,0}]", "[{0,0,0},{0,0,0}]",
                         "[{0,0,0};{0,0,0}", "{0,0,0};{0,0,0}", "[{0,0,0};{0,0,0}]]"}});
    expectRefused<Pair>({{3, 4}, {"", "x", "1x", "x1", "1X1", "1x1x1", "1 x1", "1x1 ", "0x"}});
    expectRefused<Identifier>({{"a", "b"},
                               {"", "@", "c@", "@c", "c", "c@d@e", "c d@e", "c@d e", "c@d\n",
                                "c@d\t", "c[0]@d", "c,d@e", "{c}@d", "c@(d)"}});
    Nothing nothing;
    EXPECT_FALSE(VValueTrait<Nothing>::setValueFromText(nothing, " "));
}

/// Doubles of all magnitudes.
class RandomNumbers {
public:
    double next() {
        for (;;) {
            double number = 0.0;
            std::uint64_t const bits = generator_();
            static_assert(sizeof number == sizeof bits);
            std::memcpy(&number, &bits, sizeof number);
            if (number - number == 0)
                return number;
        }
    }
    Point point() { return {next(), next(), next()}; }

private:
    std::mt19937_64 generator_{20240322};
};

template <class T>
void expectSame(T const& value) {
    T read{};
    std::string const text = VValueTrait<T>::Text(value);
    ASSERT_TRUE(VValueTrait<T>::setValueFromText(read, text)) << text;
    ASSERT_EQ(read, value) << text;
    ASSERT_EQ(inferType(text), Nucleo::Typename(typeid(T))) << text;
}

TEST(TextForms, WhatWasWrittenReadsBackToTheSameValue) {
    RandomNumbers random;
    for (int i = 0; i < 2000; ++i) {
        expectSame(random.next());
        expectSame(random.point());
        expectSame(Box{random.point(), random.point()});
        expectSame(Pair{random.next(), random.next()});
        expectSame(Range(random.next(), random.next()));
        expectSame(VTime(random.next(), random.next(), random.next(), random.next(), "", "", ""));
        expectSame(Identifier{"n" + std::to_string(i), std::to_string(random.next())});
    }
    expectSame(true);
    expectSame(false);
}

TEST(TextForms, AnIdentifierMayHoldWhatIsNoBlank) {
    expectSame(Identifier{"a.b/c:d", "e-f+g"});
}

}  // namespace
