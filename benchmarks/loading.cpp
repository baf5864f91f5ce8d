/// Loading a library, asking its one question, unloading it.
#include "benchmarks/groups.hpp"
#include "host/creators/VInitialization.hpp"
#include "workbench/platform/Library.hpp"

namespace benchmarks {

namespace {

std::string add(std::string const& name, std::filesystem::path const& file,
                std::string const& symbol) {
    benchmark::RegisterBenchmark(name.c_str(), [file, symbol](benchmark::State& state) {
        Orlo::VInitialization host;
        for ([[maybe_unused]] auto _ : state) {
            workbench::Library const library(file);
            auto const question = library.find<int (*)(Orlo::VInitialization*)>(symbol.c_str());
            benchmark::DoNotOptimize(question(&host));
        }
        state.SetItemsProcessed(state.iterations());
    });
    return name;
}

}  // namespace

Group loading(std::filesystem::path const& plugin) {
    std::filesystem::path const nothing =
        std::filesystem::path(plugin).replace_filename("nothing.so");
    return {"Load, ask, unload",
            {"a C library that does nothing"},
            {{"`prism_tinctures.telm`",
              add("load plug-in", plugin, "TELM_API_2024_MAR_06__prism_tinctures"),
              {add("load nothing", nothing, "question")}}}};
}

}  // namespace benchmarks
