/// Holds every object that it makes, so that none goes.
#include <mutex>

#include "tests/brokenPlugins/Healthy.hpp"

namespace {

std::mutex mutex;
std::vector<ObjectPtr> held;

class Held : public Object<Grey> {
public:
    using Object::Object;

    bool update(VRequest& request, double precision) override {
        std::scoped_lock const lock(mutex);
        if (held.empty() || held.back().get() != this)
            held.emplace_back(this);
        return Object::update(request, precision);
    }
};

}  // namespace

PRISM_ENTRY(Held)
