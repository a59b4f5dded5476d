#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <tuple>
#include <vector>

/// Prints at the end, for each kind of editor, measure and number of editors, how the plug-in's editor compares with
/// the bare one (printFigure): the ratio of the medians of their repetitions.
///
/// Reads the names of benchmarks: kind/measure/side/count, where the side is "bare" or "plug-in". A measure that leaves
/// a counter "heap" (bytes for one editor) gives a row "heap" besides.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    RatioReporter() : ConsoleReporter(OO_None) {}

    void ReportRuns(std::vector<Run> const& runs) override;
    void Finalize() override;
    /// How many ratios are above their goals; known at the end.
    int above() const { return above_; }

private:
    struct Pair {
        double bare = 0;
        double plugin = 0;
    };
    using Row = std::pair<std::string, std::string>;

    void take(Row const& row, std::string const& side, int count, double figure);

    std::vector<Row> rows_;
    std::map<std::pair<Row, int>, Pair> pairs_;
    int above_ = 0;
};
