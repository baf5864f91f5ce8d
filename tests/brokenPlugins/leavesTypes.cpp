/// Leaves the creator of a value type behind.
#include "tests/brokenPlugins/Healthy.hpp"

PRISM_ENTRY(Object<Grey>)

namespace {

auto const* const left = new TypedSlot<int>::SlotCreator;

}  // namespace

bool isLeft() {
    return left != nullptr;
}
