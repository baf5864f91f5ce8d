/// Entries that stand a failed allocation, but not another one at the next try.
#include <new>

#include "tests/brokenPlugins/Healthy.hpp"

namespace {

using Plain = Object<Grey>;

/// Does something. When it has failed, it is tried again with some memory laid by, which
/// is lost if it fails once more.
template <class Work>
auto relapsing(bool& hasFailed, Work const& work) {
    void* const reserve = hasFailed ? ::operator new(100) : nullptr;
    try {
        auto const result = work();
        ::operator delete(reserve);
        hasFailed = false;
        return result;
    } catch (std::bad_alloc const&) {
        hasFailed = true;
        throw;
    }
}

struct RelapsingMaker : Entry<Plain> {
    using Entry::Entry;
    ObjectPtr create(std::string const& name, Nucleo::Intercube const& context,
                     PreferencesPtr const& preferences) const override {
        return relapsing(hasFailed_, [&] { return Entry::create(name, context, preferences); });
    }

private:
    mutable bool hasFailed_ = false;
};
RelapsingMaker const maker("Colormaps", "Relapsing maker");

class RelapsingUpdater : public Plain {
public:
    using Plain::Plain;
    bool update(VRequest& request, double precision) override {
        return relapsing(hasFailed_, [&] { return Plain::update(request, precision); });
    }

private:
    bool hasFailed_ = false;
};
Entry<RelapsingUpdater> const updater("Colormaps", "Relapsing updater");

}  // namespace
