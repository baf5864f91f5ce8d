/// Tells the host of the attach before its entry stands.
#include "tests/brokenPlugins/Telling.hpp"

namespace {
Attach const attach;
}

PRISM_ENTRY(Object<Grey>)

namespace {
Detach const detach;
}
