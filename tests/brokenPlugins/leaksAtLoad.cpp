/// Leaves some memory behind each time that it is loaded.
#include "tests/brokenPlugins/Healthy.hpp"

PRISM_ENTRY(Object<Grey>)

namespace {

char* const lost = new char[8192];

}  // namespace

bool isLost() {
    return lost != nullptr;
}
