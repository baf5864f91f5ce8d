/// Never comes back from an update.
#include <chrono>
#include <thread>

#include "tests/brokenPlugins/Healthy.hpp"

namespace {

class Hanging : public Object<Grey> {
public:
    using Object::Object;

    bool update(VRequest&, double) override {
        for (;;)
            std::this_thread::sleep_for(std::chrono::seconds(1));
    }
};

}  // namespace

PRISM_ENTRY(Hanging)
