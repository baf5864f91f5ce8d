/// The results as a table.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace benchmarks {

/// What is measured, and beside which floors.
///
/// Each row names its own benchmark and one for each floor of its group.
struct Row {
    std::string what;
    std::string measured;             ///< name of the benchmark
    std::vector<std::string> floors;  ///< names of the benchmarks, in the group's order
};

struct Group {
    std::string title;
    std::vector<std::string> floorTitles;
    std::vector<Row> rows;
};

/// Collects the medians of a run and prints the groups with their ratios in
/// Markdown.
class Table : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(Context const&) override { return true; }
    void ReportRuns(std::vector<Run> const& runs) override;

    void print(std::FILE* file, std::vector<Group> const& groups) const;

private:
    /// Nanoseconds for one item, the median of the repetitions.
    std::map<std::string, double> medians_;
};

}  // namespace benchmarks
