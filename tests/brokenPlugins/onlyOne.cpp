/// Brings less where another file of it is in the process already.
#include <memory>

#include "tests/brokenPlugins/Healthy.hpp"

PRISM_ENTRY(Object<Grey>)

namespace {

struct Claim {
    Claim() : isMine(registerVInput(typeid(double), WeakInputCreatorPtr(&entry))) {}
    ~Claim() { unregisterVInput(typeid(double), WeakInputCreatorPtr(&entry)); }
    bool isMine;
} const claim;

auto const more =
    claim.isMine ? std::make_unique<Entry<Object<Grey>>>("Colormaps", "More") : nullptr;

}  // namespace
