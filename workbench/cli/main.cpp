#include <cstdio>

#include "host/object/Tincture.hpp"
#include "runtime/lattice/Catalogue.hpp"
#include "runtime/lattice/Diagnostics.hpp"
#include "workbench/plugin/PluginFile.hpp"

using namespace Orlo;
int main(int argc, char** argv) {
    setVerbosity(argc > 1 ? 100 : 0);
    (void)argv;
    VInitialization host;
    workbench::PluginFile plugin(workbench::pluginBesideProgram(), host);
    PoolPtr pool = new ValuePool("Viewer1");
    for (auto const& c : catalogue()) {
        auto o = c->create("", Nucleo::Intercube(), nullptr);
        VRequest r(pool);
        o->request(r, 0, nullptr, nullptr);
        StrongPtr<Tincture, VManagedObjectBase> t(o);
        ColormapPtr map;
        readParameter(*t->output(), pool, map);
        auto col = map->getColor(0.5);
        std::printf("%s %d %g %g %g %g age %d icons %u\n", c->keyname("/").c_str(), c->orderNumber(),
                    col[0], col[1], col[2], col[3], static_cast<int>(map->age()), t->iconCount());
    }
}
