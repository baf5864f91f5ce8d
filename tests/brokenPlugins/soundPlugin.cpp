/// Keeps the contract: whatever is named of it is named wrongly.
#include "tests/brokenPlugins/Healthy.hpp"

PRISM_ENTRY(Object<Grey>)
