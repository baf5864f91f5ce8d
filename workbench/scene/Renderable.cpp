#include "workbench/scene/Renderable.hpp"

namespace workbench {

std::optional<Fragment> Renderable::intersect(Ray const&) const {
    return std::nullopt;
}

void Renderable::drawOver(Image&) const {}

}  // namespace workbench
