#include "benchmarks/Table.hpp"

#include <cstdio>

namespace benchmarks {

void Table::ReportRuns(std::vector<Run> const& runs) {
    for (Run const& run : runs) {
        if (run.error_occurred)
            std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(),
                         run.error_message.c_str());
        auto const rate = run.counters.find("items_per_second");
        if (run.aggregate_name == "median" && rate != run.counters.end())
            medians_[run.run_name.function_name] = 1e9 / rate->second;
    }
}

void Table::print(std::FILE* file, std::vector<Group> const& groups) const {
    for (Group const& group : groups) {
        std::fprintf(file, "\n### %s\n\n| what | ns |", group.title.c_str());
        for (std::string const& title : group.floorTitles)
            std::fprintf(file, " %s, ns | ratio |", title.c_str());
        std::fprintf(file, "\n| --- | ---: |");
        for (std::size_t i = 0; i < group.floorTitles.size(); ++i)
            std::fprintf(file, " ---: | ---: |");
        std::fprintf(file, "\n");
        for (Row const& row : group.rows) {
            if (!medians_.contains(row.measured))
                continue;  // a filter left it out
            double const measured = medians_.at(row.measured);
            std::fprintf(file, "| %s | %.4g |", row.what.c_str(), measured);
            for (std::string const& floor : row.floors)
                std::fprintf(file, " %.4g | %.2f |", medians_.at(floor),
                             measured / medians_.at(floor));
            std::fprintf(file, "\n");
        }
    }
}

}  // namespace benchmarks
