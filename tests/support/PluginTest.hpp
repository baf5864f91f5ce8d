/// Tests that run with the built plug-in loaded.
#pragma once

#include <gtest/gtest.h>

#include "workbench/session/PluginFile.hpp"

namespace tests {

/// Loads the plug-in that lies beside the test program before each test and
/// unloads it afterwards. What a test takes from it (objects, maps, values)
/// must be gone at the end of the test's body, so keep it in local variables.
class PluginTest : public ::testing::Test {
protected:
    Orlo::VInitialization host_;
    workbench::PluginFile plugin_{workbench::pluginBesideProgram(), host_};
};

}  // namespace tests
