/// Brings its entry at the first load in a process, and at no other.
#include <cstdlib>
#include <memory>

#include "tests/brokenPlugins/Healthy.hpp"

namespace {

bool isFirst() {
    constexpr char Mark[] = "PRISM_LOADED_ONCE";
    if (std::getenv(Mark) != nullptr)
        return false;
#if defined(_WIN32)
    _putenv_s(Mark, "1");
#else
    setenv(Mark, "1", 1);
#endif
    return true;
}

auto const entry = isFirst() ? std::make_unique<Entry<Object<Grey>>>("Colormaps", "Grey") : nullptr;

}  // namespace
