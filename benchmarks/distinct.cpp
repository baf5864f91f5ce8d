/// The colours that are far apart, beside the plain form of their selection.
#include "benchmarks/groups.hpp"
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

std::vector<LabPoint> plainConversion(int steps) {
    std::vector<RgbTriple> const grid = plainGrid(RgbGrid(steps));
    return rgbToLab(light(), static_cast<int>(grid.size()), grid);
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

/// The same where each run needs something fresh, which is not timed.
template <class Prepare, class Operation>
std::string add(std::string const& name, Prepare prepare, Operation operation) {
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
        for ([[maybe_unused]] auto _ : state) {
            state.PauseTiming();
            auto fresh = prepare();
            state.ResumeTiming();
            benchmark::DoNotOptimize(operation(fresh));
        }
        state.SetItemsProcessed(state.iterations());
    });
    return name;
}

void addConversion(Group& group, int steps) {
    std::string const what = std::to_string(steps) + " steps";
    group.rows.push_back(
        {what,
         add("convert " + what, [steps] { return FarthestPoints(light(), RgbGrid(steps)); }),
         {add("plain convert " + what, [steps] { return plainConversion(steps); })}});
}

void addSelection(Group& group, Size const& size) {
    FarthestPoints const converted(light(), RgbGrid(size.steps));
    group.rows.push_back(
        {text(size),
         add(
             "select " + text(size), [converted] { return FarthestPoints(converted); },
             [size](FarthestPoints& points) { return points.pick(backgrounds(), size.colors); }),
         {add(
             "plain select " + text(size),
             [points = plainConversion(size.steps)] { return points; },
             [size](std::vector<LabPoint>& points) {
                 return plainFarthestPoints(std::move(points), backgrounds(), size.colors);
             })}});
}

void addWhole(Group& group, Size const& size) {
    group.rows.push_back({text(size),
                          add("distinct " + text(size),
                              [size] {
                                  return FarthestPoints(light(), RgbGrid(size.steps))
                                      .pick(backgrounds(), size.colors);
                              }),
                          {add("plain distinct " + text(size), [size] {
                              return plainFarthestPoints(plainConversion(size.steps), backgrounds(),
                                                         size.colors);
                          })}});
}

}  // namespace

std::vector<Group> distinctColors() {
    Group conversion{"Distinct colours: conversion of the grid", {"plain form"}, {}};
    Group selection{"Distinct colours: selection", {"plain form"}, {}};
    Group whole{"Distinct colours: the whole call", {"plain form"}, {}};
    for (int const steps : {30, 60})
        addConversion(conversion, steps);
    for (Size const size : {Size{10, 30}, Size{100, 30}, Size{1000, 30}, Size{100, 60}}) {
        addSelection(selection, size);
        addWhole(whole, size);
    }
    return {conversion, selection, whole};
}

}  // namespace benchmarks
