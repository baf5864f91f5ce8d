#include "workbench/scene/Renderable.hpp"

namespace workbench {

std::optional<Fragment> Renderable::intersect(Ray const&) const {
    return std::nullopt;
}

void Renderable::drawOver(Image&) const {}

std::optional<Reading> Renderable::read(Ray const&) const {
    return std::nullopt;
}

std::optional<Reading> Renderable::readOver(Image const&, int, int) const {
    return std::nullopt;
}

}  // namespace workbench
