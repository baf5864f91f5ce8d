/// `getColor` of every map through the base pointer.
#include <cstdint>
#include <memory>

#include "benchmarks/floors.hpp"
#include "benchmarks/formulas.hpp"
#include "benchmarks/groups.hpp"
#include "runtime/lattice/Catalogue.hpp"
#include "workbench/session/objects.hpp"
#include "workbench/session/parameters.hpp"

namespace benchmarks {

namespace {

constexpr std::size_t Count = 4096;

/// Scalars from 0 to 1 in no order, the same in every run.
std::vector<double> const& scalars() {
    static std::vector<double> const values = [] {
        std::vector<double> made(Count);
        std::uint64_t state = 1;
        for (double& value : made) {
            state = state * 6364136223846793005U + 1442695040888963407U;
            value = static_cast<double>(state >> 11) / 9007199254740992.0;
        }
        return made;
    }();
    return values;
}

/// Registers a benchmark that looks all scalars up by a function object.
///
/// The colours are added up, not stored: to store one, the compiler puts the two
/// halves of a returned colour together through the stack and waits 5 ns for it,
/// three times what the call takes.
template <class LookUp>
std::string add(std::string const& name, LookUp lookUp) {
    benchmark::RegisterBenchmark(name.c_str(), [lookUp](benchmark::State& state) {
        std::vector<double> const& values = scalars();
        for ([[maybe_unused]] auto _ : state) {
            float total = 0;
            for (double const value : values) {
                auto const color = lookUp(value);
                total += (color[0] + color[1]) + (color[2] + color[3]);
            }
            benchmark::DoNotOptimize(total);
        }
        state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(Count));
    });
    return name;
}

/// A parameter and its text.
using Setting = std::pair<std::string, std::string>;

Orlo::ColormapPtr mapOf(std::string const& key, std::vector<Setting> const& settings = {}) {
    Orlo::ObjectPtr const object = workbench::create(key);
    for (auto const& [name, text] : settings)
        workbench::setParameter(*object, name, text, nullptr);
    return workbench::update(*object, new Orlo::ValuePool);
}

/// A table with the map's own colours.
Colors tableOf(Orlo::Colormap const& map) {
    Colors table;
    for (int i = 0; i < map.getSize(); ++i)
        table.push_back(map.getColor(static_cast<double>(i) / map.getSize()));
    return table;
}

}  // namespace

Group lookups() {
    Group group{"One lookup, random scalars", {"inlined table lookup", "virtual table lookup"}, {}};
    for (Orlo::WeakCreatorPtr const& entry : Orlo::catalogue()) {
        std::string const key = entry->keyname("/");
        Orlo::ColormapPtr const map = mapOf(key);
        auto const table = std::make_shared<Colors const>(tableOf(*map));
        std::shared_ptr<Lookup const> const called = makeTableLookup(*table);
        group.rows.push_back(
            {"`" + key + "`",
             add("getColor " + key, [&m = *map, map](double value) { return m.getColor(value); }),
             {add("inlined " + key, [&t = *table, table](double value) { return row(t, value); }),
              add("virtual " + key,
                  [&c = *called, called](double value) { return c.getColor(value); })}});
    }
    return group;
}

namespace {

/// A map with some of its parameters set, beside the same by hand. The floor of a map
/// is that and the call, which is made without looking at what it gives.
template <class Formula>
void addFormula(Group& group, std::string const& key, std::vector<Setting> const& settings,
                Formula formula) {
    static std::shared_ptr<Lookup const> const empty = makeEmptyLookup();
    std::string what = "`" + key + "`", name = key;
    for (auto const& [parameter, text] : settings) {
        what += ", \"" + parameter + "\" " + text;
        name += " " + parameter + " " + text;
    }
    Orlo::ColormapPtr const map = mapOf(key, settings);
    group.rows.push_back(
        {what,
         add("formula map " + name, [&m = *map, map](double value) { return m.getColor(value); }),
         {add("by hand " + name, formula),
          add("call and by hand " + name, [&e = *empty, formula](double value) {
              e.getColor(value);
              return formula(value);
          })}});
}

}  // namespace

Group formulaLookups() {
    Group group{"One lookup of a formula map, random scalars",
                {"by hand, inlined", "the same and an empty virtual call"},
                {}};
    TwoGradients band;
    band.epsilon = 0.1;
    Hue square;
    square.exponent = 2.0;
    addFormula(group, "Colormaps/Colorramp", {}, Hue());
    addFormula(group, "Colormaps/Colorramp", {{"exp_scale", "2"}}, square);
    addFormula(group, "Colormaps/DopplerMap", {}, Lines());
    addFormula(group, "Colormaps/Glow", {}, Parabola());
    addFormula(group, "Colormaps/Intensitymap", {}, Line());
    addFormula(group, "Colormaps/LogRedGreen", {}, ExponentialGradient());
    addFormula(group, "Colormaps/Monochrome", {}, Constant());
    addFormula(group, "Colormaps/Muv", {}, Gradient());
    addFormula(group, "Colormaps/Ort", {}, ExponentialGradient());
    addFormula(group, "Colormaps/RedGreen", {}, Gradient());
    addFormula(group, "Colormaps/Zebramap", {}, Stripes());
    addFormula(group, "Colormaps/ZeroInfinity", {}, TwoGradients());
    addFormula(group, "Colormaps/ZeroInfinity", {{"epsilon", "0.1"}}, band);
    return group;
}

}  // namespace benchmarks
