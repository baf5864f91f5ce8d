/// The colours that are far apart, beside the plain form of their selection.
#include "benchmarks/groups.hpp"
#include "prism/tinctures/science/FarthestPoints.hpp"
#include "prism/tinctures/science/plainFarthestPoints.hpp"

namespace benchmarks {

namespace {

using namespace prism;

struct Size {
    std::size_t colors;
    int steps;
};

std::string text(Size const& size) {
    return std::to_string(size.colors) + " colours, " + std::to_string(size.steps) + " steps";
}

Orlo::Enum const& light() {
    static Orlo::Enum const d50 = Orlo::Enum().addCase("D50").addCase("D65");
    return d50;
}

std::vector<LabPoint> const& backgrounds() {
    static std::vector<LabPoint> const black = rgbToLab(light(), 2, {{0, 0, 0}, {0, 0, 0}});
    return black;
}

std::vector<std::size_t> distinct(Size const& size) {
    FarthestPoints points(light(), RgbGrid(size.steps), size.colors);
    for (LabPoint const& background : backgrounds())
        points.take(background);
    std::vector<std::size_t> picks;
    while (picks.size() < size.colors)
        picks.push_back(points.pick().value());
    return picks;
}

std::vector<std::size_t> plainDistinct(Size const& size) {
    std::vector<RgbTriple> const grid = plainGrid(RgbGrid(size.steps));
    return plainFarthestPoints(rgbToLab(light(), static_cast<int>(grid.size()), grid),
                               backgrounds(), size.colors);
}

template <class Operation>
std::string add(std::string const& name, Operation operation) {
    benchmark::RegisterBenchmark(name.c_str(), [operation](benchmark::State& state) {
        for ([[maybe_unused]] auto _ : state)
            benchmark::DoNotOptimize(operation());
        state.SetItemsProcessed(state.iterations());
    });
    return name;
}

void addRow(Group& group, Size const& size) {
    group.rows.push_back(
        {text(size),
         add("distinct " + text(size), [size] { return distinct(size); }),
         {add("plain distinct " + text(size), [size] { return plainDistinct(size); })}});
}

}  // namespace

std::vector<Group> distinctColors() {
    Group group{"Distinct colours", {"plain form"}, {}};
    for (Size const size : {Size{10, 30}, Size{100, 30}, Size{1000, 30}, Size{10, 60},
                            Size{100, 60}, Size{10, 128}, Size{500, 10}})
        addRow(group, size);
    return {group};
}

}  // namespace benchmarks
