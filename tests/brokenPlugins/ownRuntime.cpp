/// Brings the C++ runtime with it: the linker puts a copy into the file.
#include "tests/brokenPlugins/Healthy.hpp"

PRISM_ENTRY(Object<Grey>)
