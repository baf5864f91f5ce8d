/// What the host and a plug-in say to each other at load and unload.
#pragma once

#include <string>

#include "host/pointers/import.hpp"
#include "host/pointers/threads.hpp"

namespace Orlo {

/// The host's side of loading a plug-in.
class LATTICE_API VInitialization {
public:
    /// Why a plug-in reports. The numbers are fixed.
    enum InitPluginReason : int {
        ProcessAttach = 0,
        ProcessDetach = 1,
        ThreadAttach = 2,
        ThreadDetach = 3,
    };

    /// The answers of `IsCompatible`.
    enum Answer : int { Incompatible = 0, Compatible = 1 };

    VInitialization();
    /// A host that gives every plug-in the same answer.
    explicit VInitialization(int fixedAnswer);

    /// Whether a library that was built against the given interface may be
    /// used; the answer goes back through the plug-in's export as it is. [host]
    int IsCompatible(char const* token);

    /// The token that was asked about last, or null.
    char const* askedToken() const noexcept { return asked_; }
    /// How often a plug-in has asked.
    unsigned questions() const noexcept { return questions_; }

    /// A plug-in reports that it is attached, detached, or that a thread starts
    /// or ends. The texts are constants of the plug-in. [loader]
    static void initPlugin(InitPluginReason reason, char const* moduleName, char const* token);

private:
    int answer_ = Incompatible;
    bool fixed_ = false;
    char const* asked_ = nullptr;
    unsigned questions_ = 0;
};

}  // namespace Orlo
