/// Loads the plug-in, makes an object of each entry, and ends without unloading
/// anything. The host prints what it hears.
#include <cstdio>
#include <vector>

#include "runtime/lattice/Catalogue.hpp"
#include "runtime/lattice/Diagnostics.hpp"
#include "tests/support/objects.hpp"
#include "workbench/session/PluginFile.hpp"

namespace {

/// What stands to the very end.
struct Held {
    Orlo::VInitialization host;
    workbench::PluginFile plugin{workbench::pluginBesideProgram(), host};
    std::vector<Orlo::ObjectPtr> objects;
};

Held* held = nullptr;

}  // namespace

int main() {
    std::setvbuf(stdout, nullptr, _IONBF, 0);  // the system may end us without a flush
    Orlo::setVerbosity(100);
    held = new Held;
    for (auto const& creator : Orlo::catalogue())
        held->objects.push_back(tests::create(creator->keyname("/"), "held"));
    std::puts("main ends");
    return 0;
}
