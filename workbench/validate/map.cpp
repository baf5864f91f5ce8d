/// The map: its answers, and what they cost.
#include <cfenv>
#include <cmath>
#include <cstdio>

#include "workbench/platform/FailingAllocation.hpp"
#include "workbench/platform/Watch.hpp"
#include "workbench/platform/ownProcess.hpp"
#include "workbench/validate/Host.hpp"
#include "workbench/validate/colours.hpp"
#include "workbench/validate/texts.hpp"

namespace workbench::validate {

namespace {

using namespace Orlo;

constexpr int ManyScalars = 65537;

/// Works with the map of each entry as it comes, and once more with every parameter at
/// another value.
void withEachMap(Trial const& trial, std::function<void(Colormap const& map)> const& work) {
    withMaps(trial, [&](WeakCreatorPtr const&, ObjectPtr const& object) {
        PoolPtr const pool = newPool();
        work(*updated(*object, pool));
        for (SlotPtr const& slot : inputsOf(*object))
            if (std::string const other = otherText(*slot->ownParameter()); !other.empty())
                setParameter(*object, slot->name(), other);
        inOwnWords("with other parameters", [&] { work(*updated(*object, pool)); });
    });
}

std::vector<double> everyScalar() {
    std::vector<double> all = scalarsTo(ManyScalars);
    for (double const special : specialScalars())
        all.push_back(special);
    return all;
}

void answers(Trial& trial) {
    std::vector<double> const scalars = everyScalar();
    withEachMap(trial, [&](Colormap const& map) {
        double asked = 0;
        try {
            for (double const scalar : scalars)
                map.getColor(asked = scalar);
        } catch (...) {
            fail("the lookup of " + nameOf(asked) + " throws");
        }
    });
}

void sameTwice(Trial& trial) {
    std::vector<double> const scalars = everyScalar();
    withEachMap(trial, [&](Colormap const& map) {
        for (double const scalar : scalars) {
            rgba_float_t const first = map.getColor(scalar), second = map.getColor(scalar);
            if (!isSame(first, second))
                fail("asked twice, the scalar " + nameOf(scalar) + " had the colour " +
                     nameOf(first) + " and has " + nameOf(second));
        }
        std::string const change = difference(map, scalars, coloursOf(map, scalars));
        require(change.empty(), "asked again, " + change);
    });
}

void finite(Trial& trial) {
    std::vector<double> const scalars = scalarsTo(ManyScalars);
    withMaps(trial, [&](WeakCreatorPtr const&, ObjectPtr const& object) {
        ColormapPtr const map = updated(*object, newPool());
        for (double const scalar : scalars) {
            rgba_float_t const colour = map->getColor(scalar);
            for (std::size_t i = 0; i < colour.size(); ++i)
                if (!std::isfinite(colour[i]))
                    warn("the scalar " + nameOf(scalar) + " has the colour " + nameOf(colour));
        }
    });
}

void allocatesNothing(Trial& trial) {
    if (!seesAllocations())
        skip("on this system a program does not see the allocations of its libraries");
    std::vector<double> const scalars = everyScalar();
    withEachMap(trial, [&](Colormap const& map) {
        for (double const scalar : scalars) {
            unsigned long const before = allocationsOfThread();
            map.getColor(scalar);
            if (allocationsOfThread() != before)
                fail("the lookup of " + nameOf(scalar) + " allocates memory");
        }
    });
}

void locksNothing(Trial& trial) {
    if (!Watch::sees())
        skip("this program does not see the locks that its libraries take");
    std::vector<double> const scalars = everyScalar();
    withEachMap(trial, [&](Colormap const& map) {
        Watch const watch;
        for (double const scalar : scalars) {
            map.getColor(scalar);
            if (watch.locks() != 0)
                fail("the lookup of " + nameOf(scalar) + " takes a lock");
        }
        std::vector<std::string> const touched = watch.touched();
        require(touched.empty(), "a lookup has " + (touched.empty() ? "" : touched.front()));
    });
}

void quiet(Trial& trial) {
    withEachMap(trial, [&](Colormap const& map) {
        std::fflush(stdout);
        std::size_t const before = writtenBytes();
        coloursOf(map, specialScalars());
        std::fflush(stdout);
        require(writtenBytes() == before, "lookups print something");
    });
}

/// What a component is as a whole number: clamped to 0..1, NaN as 0, and rounded.
long wholeNumber(float component, long greatest) {
    double const value = component > 0 ? std::fmin(component, 1.0F) : 0.0;
    return std::lround(value * static_cast<double>(greatest));
}

template <class Color>
void requireWhole(Color const& color, rgba_float_t const& expected, char const* what,
                  double scalar) {
    long const greatest = std::numeric_limits<typename Color::value_type>::max();
    for (std::size_t i = 0; i < color.size(); ++i)
        if (std::labs(color[i] - wholeNumber(expected[i], greatest)) > 1)
            fail(std::string(what) + " of the scalar " + nameOf(scalar) + " has the component " +
                 std::to_string(color[i]) + ", and getColor gives " + nameOf(expected));
}

void wholeNumbers(Trial& trial) {
    withEachMap(trial, [](Colormap const& map) {
        double const min = map.getMin(), width = map.getMax() - min;
        int const size = map.getSize();
        for (int i = -2; i <= size + 2 && i < 100000; ++i) {
            double const scalar = min + width * i / size;
            rgba_float_t const expected = map.getColor(scalar);
            requireWhole(map.getColorRGB(i), expected, "getColorRGB", scalar);
            requireWhole(map.getColorRGBA(i), expected, "getColorRGBA", scalar);
            requireWhole(map.getColorRGB16(i), expected, "getColorRGB16", scalar);
            requireWhole(map.getColorRGBA16(i), expected, "getColorRGBA16", scalar);
        }
        for (double const scalar : specialScalars())
            requireWhole(map.getColor16(scalar), map.getColor(scalar), "getColor16", scalar);
    });
}

void facts(Trial& trial) {
    withEachMap(trial, [](Colormap const& map) {
        require(map.getMin() < map.getMax(), "its domain goes from " +
                                                 std::to_string(map.getMin()) + " to " +
                                                 std::to_string(map.getMax()));
        require(map.getSize() >= 1,
                "it says that it has " + std::to_string(map.getSize()) + " colours");
        int const size = map.getSize(), min = map.getMin(), max = map.getMax();
        std::string const label = map.getLabel();
        std::intptr_t const extra = map.getExtra();
        require(isUtf8(label), "its label is no UTF-8");
        coloursOf(map, specialScalars());
        require(map.getSize() == size && map.getMin() == min && map.getMax() == max &&
                    map.getLabel() == label && map.getExtra() == extra,
                "its size, domain, label or extra is another one after some lookups");
    });
    withMaps(trial, [](WeakCreatorPtr const&, ObjectPtr const& object) {
        PoolPtr const pool = newPool();
        ColormapPtr const map = updated(*object, pool);
        int const size = map->getSize(), min = map->getMin(), max = map->getMax();
        forceUpdate(*object, pool);
        ColormapPtr const now = mapOf(*object, pool);
        require(now->getSize() == size && now->getMin() == min && now->getMax() == max,
                "its size or domain is another one after an update without a change");
    });
}

void arithmetic(Trial& trial) {
    withMaps(trial, [](WeakCreatorPtr const&, ObjectPtr const& object) {
        std::fenv_t before;
        std::fegetenv(&before);
        int const rounding = std::fegetround();
        double volatile third = 1.0;
        third = third / 3.0;
        double volatile tiny = 1e-310;
        coloursOf(*updated(*object, newPool()), specialScalars());
        double volatile again = 1.0;
        again = again / 3.0;
        double volatile half = tiny;
        half = half / 2.0;
        bool const right = std::fegetround() == rounding && again == third && half != 0;
        std::fesetenv(&before);
        require(right,
                "after an update and lookups the processor rounds in another way, or takes "
                "the smallest numbers for 0");
    });
}

}  // namespace

std::vector<Test> mapTests() {
    return {
        {"map/answers",
         "A map answers every scalar, NaN and the infinities too, and throws nothing.",
         {"cycle/publishes"},
         answers},
        {"map/same-twice",
         "Asked twice, it gives the same colour, to the last bit.",
         {"map/answers"},
         sameTwice},
        {"map/allocates-nothing",
         "A lookup allocates no memory.",
         {"map/answers"},
         allocatesNothing},
        {"map/locks-nothing",
         "A lookup takes no lock, and reads no file and no environment.",
         {"map/answers"},
         locksNothing},
        {"map/quiet", "A lookup prints nothing.", {"map/answers"}, quiet},
        {"map/whole-numbers",
         "The lookups in whole numbers agree with getColor.",
         {"map/same-twice"},
         wholeNumbers},
        {"map/facts",
         "Size, domain, label and extra hold still; there is one colour at least, and the domain "
         "has a width.",
         {"map/answers"},
         facts},
        {"map/finite",
         "With the defaults, the colours from 0 to 1 are finite.",
         {"map/answers"},
         finite},
        {"map/arithmetic",
         "It leaves the processor's ways of rounding as they are.",
         {"map/answers"},
         arithmetic},
    };
}

}  // namespace workbench::validate
