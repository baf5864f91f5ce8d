/// Networks executed with the built plug-in and the host's own objects: what their
/// tests share.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/PluginTest.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/files.hpp"
#include "workbench/network/Network.hpp"
#include "workbench/network/report.hpp"
#include "workbench/nodes/NodeCreators.hpp"

namespace workbench {

inline std::string example(char const* name) {
    return readFile(std::filesystem::path(PRISM_EXAMPLES) / name);
}

inline std::vector<std::string> reports(Network const& network) {
    std::vector<std::string> texts;
    for (Complaint const& complaint : network.complaints())
        texts.push_back(reportOf("net", complaint));
    return texts;
}

/// The text form of an object's parameter, in a context if one is named.
inline std::string valueOf(Network& network, std::string const& place) {
    auto const where = valuePathOf(place);
    Orlo::SlotPtr const slot = network.object(where->object)->slot(where->name);
    if (!slot)
        return "no such parameter";
    Orlo::PoolPtr const pool =
        where->context.empty() ? Orlo::PoolPtr() : network.pool(where->context);
    return Orlo::valueInPool(*slot->ownParameter(), pool, false)->text();
}

/// The name of the object that an input is connected to.
inline std::string providerOf(Network const& network, std::string const& object,
                              std::string const& input) {
    Orlo::SlotPtr const slot = network.object(object)->slot(input);
    if (!slot)
        return "no such input";
    Orlo::ObjectPtr const provider(slot->provider());
    return provider ? provider->Name() : "nobody";
}

class NetworkTest : public tests::PluginTest {
protected:
    /// Carries out a banner with the given lines behind it.
    void execute(std::string const& lines) {
        network_.execute(
            Script::read("# TelmScript Preliminiary Experimental \n# VERBOSE\n" + lines));
    }

    /// What a change is refused with; empty if it is not.
    std::string refusal(std::string const& place, std::string const& text) {
        try {
            network_.set(place, text);
            return {};
        } catch (CallError const& error) {
            return error.what();
        }
    }

    NodeCreators kinds_;
    Network network_;
};

}  // namespace workbench
