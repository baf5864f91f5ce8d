/// What the tests do as a host.
#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/creators/VInitialization.hpp"
#include "runtime/lattice/Catalogue.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/session/PluginFile.hpp"
#include "workbench/session/objects.hpp"
#include "workbench/session/parameters.hpp"
#include "workbench/validate/Test.hpp"

namespace workbench::validate {

/// A host that has loaded the plug-in, and unloads it at the end.
class Host {
public:
    /// Throws `PluginError`.
    explicit Host(Trial const& trial) : plugin_(std::in_place, trial.plugin, host_) {}

    Orlo::VInitialization const& initialization() const { return host_; }
    void unload() { plugin_.reset(); }

private:
    Orlo::VInitialization host_;
    std::optional<PluginFile> plugin_;
};

/// Does something for which the plug-in must stand. What it throws is said again
/// in words of the judge, since it may die with the library.
template <class Work>
void inOwnWords(std::string const& where, Work const& work) {
    std::string const prefix = where.empty() ? "" : where + ": ";
    try {
        work();
    } catch (Verdict const& verdict) {
        throw Verdict{verdict.kind,
                      verdict.kind == Kind::Skipped ? verdict.seen : prefix + verdict.seen};
    } catch (std::exception const& error) {
        fail(prefix + "it throws " + inQuotes(error.what(), 300));
    } catch (...) {
        fail(prefix + "it throws something that is no exception of the C++ library");
    }
}

/// Loads the plug-in and works with it. Whatever the work takes from the plug-in must
/// be gone at its end.
void withPlugin(Trial const& trial, std::function<void(Host& host)> const& work);

/// Loads the plug-in and works with each of its entries in turn; what goes wrong is
/// told with the entry's key.
void withEntries(Trial const& trial,
                 std::function<void(Orlo::WeakCreatorPtr const& entry)> const& work);

/// The same with those entries whose objects publish maps, and a new object of each.
void withMaps(Trial const& trial, std::function<void(Orlo::WeakCreatorPtr const& entry,
                                                     Orlo::ObjectPtr const& object)> const& work);

/// A fresh value pool.
Orlo::PoolPtr newPool();

/// Calls the object's `update` itself, whether one is due or not.
bool forceUpdate(Orlo::VObject& object, Orlo::PoolPtr const& pool);

/// Brings an object up to date, and requires a map.
Orlo::ColormapPtr updated(Orlo::VObject& object, Orlo::PoolPtr const& pool);

/// The slots that users set.
std::vector<Orlo::SlotPtr> inputsOf(Orlo::VObject const& object);

/// The outputs that carry a map.
std::vector<Orlo::SlotPtr> mapOutputsOf(Orlo::VObject const& object);

}  // namespace workbench::validate
