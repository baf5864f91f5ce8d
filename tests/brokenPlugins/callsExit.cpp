/// Ends the process at an update.
#include <cstdlib>

#include "tests/brokenPlugins/Healthy.hpp"

namespace {

class Ending : public Object<Grey> {
public:
    using Object::Object;

    bool update(VRequest&, double) override { std::exit(0); }
};

}  // namespace

PRISM_ENTRY(Ending)
