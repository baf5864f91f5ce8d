/// Runs all benchmarks and writes their tables in Markdown: benchmarks --results=FILE
/// Not to standard output, which the plug-in writes to as well.
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <string>
#include <string_view>
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

void printMachine(std::FILE* file) {
    std::fprintf(file, "Processor: %s, %u threads. Compiler: %s.\n",
                 fact("/proc/cpuinfo", "model name").c_str(), std::thread::hardware_concurrency(),
                 PRISM_COMPILER);
}

/// The file of the argument --results=FILE, which is taken out; none without it.
std::FILE* takeResults(int& argc, char** argv) {
    constexpr std::string_view Option = "--results=";
    std::FILE* file = nullptr;
    argc = static_cast<int>(
        std::remove_if(argv + 1, argv + argc,
                       [&](std::string_view argument) {
                           if (!argument.starts_with(Option))
                               return false;
                           file =
                               std::fopen(std::string(argument.substr(Option.size())).c_str(), "w");
                           return true;
                       }) -
        argv);
    return file;
}

}  // namespace

int main(int argc, char** argv) {
    std::thread([] {}).join();  // from here on std::shared_ptr counts atomically
    benchmark::Initialize(&argc, argv);
    std::FILE* const results = takeResults(argc, argv);
    if (results == nullptr) {
        std::fputs("benchmarks: --results=FILE must name a file that can be written\n", stderr);
        return 2;
    }
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
    printMachine(results);
    table.print(results, groups);
    return std::fclose(results) == 0 ? 0 : 1;
}
