/// Throws while it is loaded.
#include <stdexcept>

#include "tests/brokenPlugins/Healthy.hpp"

PRISM_ENTRY(Object<Grey>)

namespace {

int thrown() {
    throw std::runtime_error("thrown at the entry");
}
int const never = thrown();

}  // namespace

int used() {
    return never;
}
