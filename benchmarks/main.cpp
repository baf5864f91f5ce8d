/// Runs all benchmarks and prints their tables in Markdown.
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <string>
#include <thread>

#include "benchmarks/groups.hpp"
#include "workbench/session/PluginFile.hpp"

namespace {

/// The first line of a file of the system that holds a key, behind its colon.
std::string fact(char const* file, std::string const& key) {
    std::ifstream stream(file);
    for (std::string line; std::getline(stream, line);)
        if (line.starts_with(key) && line.find(": ") != std::string::npos)
            return line.substr(line.find(": ") + 2);
    return "unknown";
}

void printMachine() {
    std::printf("Processor: %s, %u threads. Compiler: %s.\n",
                fact("/proc/cpuinfo", "model name").c_str(), std::thread::hardware_concurrency(),
                PRISM_COMPILER);
}

}  // namespace

int main(int argc, char** argv) {
    std::thread([] {}).join();  // from here on std::shared_ptr counts atomically
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmarks::Table table;
    std::vector<benchmarks::Group> groups;
    {
        Orlo::VInitialization host;
        workbench::PluginFile const plugin(workbench::pluginBesideProgram(), host);
        groups.push_back(benchmarks::lookups());
        groups.push_back(benchmarks::formulaLookups());
        std::ranges::copy(benchmarks::updates(), std::back_inserter(groups));
        groups.push_back(benchmarks::pointers());
        std::ranges::copy(benchmarks::distinctColors(), std::back_inserter(groups));
        benchmark::RunSpecifiedBenchmarks(&table);
        benchmark::ClearRegisteredBenchmarks();  // they hold objects of the plug-in
    }
    groups.push_back(benchmarks::loading(workbench::pluginBesideProgram()));
    benchmark::RunSpecifiedBenchmarks(&table);
    printMachine();
    table.print(groups);
}
