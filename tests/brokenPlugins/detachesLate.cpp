/// Tells the host of the detach when its entry has gone.
#include "tests/brokenPlugins/Telling.hpp"

namespace {
Detach const detach;
}

PRISM_ENTRY(Object<Grey>)

namespace {
Attach const attach;
}
