#include "workbench/session/Session.hpp"

#include <cstdio>

#include "runtime/lattice/Diagnostics.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/nearest.hpp"
#include "workbench/session/entries.hpp"

namespace workbench {

namespace {

/// The host as the options want it, once its messages go where they should.
Orlo::VInitialization hostFor(SessionOptions const& options) {
    Orlo::setDiagnosticOutput(stderr);
    Orlo::setVerbosity(options.verbosity);
    return options.refuse ? Orlo::VInitialization(Orlo::VInitialization::Incompatible)
                          : Orlo::VInitialization();
}

}  // namespace

Session::Session(SessionOptions const& options)
    : host_(hostFor(options)), plugins_(pluginFiles(options.plugins), host_) {}

Orlo::WeakCreatorPtr Session::find(std::string const& key) const {
    for (auto const& entry : entries())
        if (entry->keyname("/") == key)
            return entry;
    for (auto const& entry : entries())
        if (nameIn(entry->keyname("/")) == key)
            return entry;
    bool const full = key.find('/') != std::string::npos;
    std::vector<std::string> names;
    for (auto const& entry : entries())
        names.push_back(full ? entry->keyname("/") : nameIn(entry->keyname("/")));
    throw CallError("there is no entry " + inQuotes(key) +
                    suggestion(key, names, "; 'telmbench catalogue' lists them"));
}

}  // namespace workbench
