/// Leaves some memory behind at each update.
#include "tests/brokenPlugins/Healthy.hpp"

namespace {

void* lost = nullptr;

class Leaking : public Object<Grey> {
public:
    using Object::Object;

    bool update(VRequest& request, double precision) override {
        lost = ::operator new(64);
        return Object::update(request, precision);
    }
};

}  // namespace

PRISM_ENTRY(Leaking)
