#include "prism/tinctures/science/LabGrid.hpp"

namespace prism {

RgbTriple RgbGrid::operator[](std::size_t index) const noexcept {
    auto const edge = static_cast<std::size_t>(steps_);
    auto const at = [this](std::size_t step) { return channel(static_cast<int>(step)); };
    return {at(index / (edge * edge)), at(index / edge % edge), at(index % edge)};
}

std::size_t Cube::places() const {
    return static_cast<std::size_t>(size(0)) * static_cast<std::size_t>(size(1)) *
           static_cast<std::size_t>(size(2));
}

Steps Cube::at(std::size_t place) const {
    auto const rest = static_cast<int>(place);
    int const greens = size(1), blues = size(2);
    return {first[0] + rest / (greens * blues), first[1] + rest / blues % greens,
            first[2] + rest % blues};
}

LabGrid::LabGrid(Orlo::Enum const& illuminant, RgbGrid const& grid, std::size_t picks)
    : steps_(grid.steps()),
      light_(selected(illuminant)),
      rough_(light_),
      isDense_(picks >= whole().places() / 4) {
    linear_.reserve(static_cast<std::size_t>(steps_));
    for (int step = 0; step < steps_; ++step)
        linear_.push_back(linearPercent(grid.channel(step)));
}

std::uint32_t LabGrid::index(Steps const& at) const {
    return static_cast<std::uint32_t>((at[0] * steps_ + at[1]) * steps_ + at[2]);
}

LabPoint LabGrid::point(Steps const& at) const {
    return linearToLab(light_, {linear(at[0]), linear(at[1]), linear(at[2])});
}

}  // namespace prism
