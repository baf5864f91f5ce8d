/// Needs a library that no host has.
#include "tests/brokenPlugins/Healthy.hpp"

#if defined(_WIN32)
__declspec(dllimport)
#endif
    int strange();

namespace {

class Strange : public Object<Grey> {
public:
    using Object::Object;
    std::string help(HelpType) const override { return std::to_string(strange()); }
};

}  // namespace

PRISM_ENTRY(Strange)
