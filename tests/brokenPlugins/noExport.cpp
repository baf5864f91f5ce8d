/// Exports nothing: it is linked without the question of a plug-in.
#include "tests/brokenPlugins/Healthy.hpp"

PRISM_ENTRY(Object<Grey>)
