/// Throws at each update.
#include <stdexcept>

#include "tests/brokenPlugins/Healthy.hpp"

namespace {

class Throwing : public Object<Grey> {
public:
    using Object::Object;

    bool update(VRequest&, double) override { throw std::runtime_error("thrown at the update"); }
};

}  // namespace

PRISM_ENTRY(Throwing)
