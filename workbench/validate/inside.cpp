/// The process that one test runs in: telmbench-judge PLUGIN TEST DEPTH SEED. The program
/// starts it; its standard output is the verdict, its standard error whatever the plug-in
/// prints.
#include <cstdio>
#include <map>

#include "runtime/lattice/Diagnostics.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/platform/StandardOutput.hpp"
#include "workbench/platform/arguments.hpp"
#include "workbench/platform/ownProcess.hpp"
#include "workbench/platform/sanitizers.hpp"
#include "workbench/validate/Judge.hpp"

#if PRISM_ADDRESS_SANITIZER
/// What is left behind the judge finds by itself, and tells to which test it belongs.
extern "C" char const* __asan_default_options() {
    return "detect_leaks=0";
}
#endif

int main(int count, char** texts) {
    using namespace workbench;
    using namespace workbench::validate;
    std::vector<std::string> const arguments = programArguments(count, texts);
    if (arguments.size() != 4) {
        std::fputs("telmbench-judge runs one test for 'telmbench validate', which starts it\n",
                   stderr);
        return 2;
    }
    endWithParent();
    Orlo::setDiagnosticOutput(stderr);
    Orlo::setVerbosity(-1);
    StandardOutput output(true);
    try {
        Trial trial;
        trial.plugin = pathOf(arguments[0]);
        trial.depth = arguments[2] == "quick"  ? Depth::Quick
                      : arguments[2] == "soak" ? Depth::Soak
                                               : Depth::Normal;
        trial.seed = std::stoull(arguments[3]);
        trial.random.seed(trial.seed);
        Verdict const verdict = runTest(testsOf(arguments[1]).front(), trial);
        output.write(written(verdict));
        return 0;
    } catch (std::exception const& error) {
        std::fprintf(stderr, "telmbench-judge: %s\n", error.what());
        return 2;
    }
}
