/// Ends in disorder when its objects are held to the end of the process.
#include <cstdlib>

#include "tests/brokenPlugins/Healthy.hpp"

namespace {

int count = 0;

class Counted : public Object<Grey> {
public:
    Counted(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Object(name, kind, preferences) {
        ++count;
    }
    ~Counted() override { --count; }
};

}  // namespace

PRISM_ENTRY(Counted)

namespace {

struct End {
    ~End() {
        if (count != 0)
            std::abort();
    }
} const end;

}  // namespace
