/// Looks for libraries in a place of one machine, which the linker writes into the file.
#include "tests/brokenPlugins/Healthy.hpp"

PRISM_ENTRY(Object<Grey>)
