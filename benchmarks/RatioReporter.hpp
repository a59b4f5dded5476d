#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <tuple>
#include <vector>

/// Prints of each benchmark the repetition that took least, as only noise makes one longer, and at the end, for each
/// kind of editor and measure, how the plug-in's editor compares with the bare one.
///
/// Reads the names of benchmarks: kind/measure/side/count, where the side is "bare" or "plug-in". A measure that leaves
/// a counter "heap" (bytes for one editor) gives a row "heap" besides.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    RatioReporter() : ConsoleReporter(OO_None) {}

    void ReportRuns(std::vector<Run> const& runs) override;
    void Finalize() override;

private:
    struct Pair {
        double bare = 0;
        double plugin = 0;
    };
    using Row = std::pair<std::string, std::string>;

    /// What the ratio shall not exceed.
    static double goal(Row const& row);
    void take(Row const& row, std::string const& side, int count, double figure);

    std::vector<Row> rows_;
    std::map<std::pair<Row, int>, Pair> pairs_;
};
