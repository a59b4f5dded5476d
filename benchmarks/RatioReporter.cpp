#include "RatioReporter.hpp"

#include <algorithm>
#include <iomanip>
#include <limits>
#include <ostream>
#include <set>
#include <sstream>

double RatioReporter::goal(Row const& row) {
    auto const& [kind, measure] = row;
    // How long a view takes to open and to scroll is measured against a frame.
    if (measure == "open" || measure == "scroll" || measure == "rows")
        return std::numeric_limits<double>::infinity();
    // A drag is many edits of which none is painted, so the host's part of each weighs more. So it is where thousands
    // of values change of which few are shown.
    if (measure == "drag" || measure == "tick")
        return 1.2;
    return kind == "network" && measure == "heap" ? 1.15 : 1.1;
}

void RatioReporter::ReportRuns(std::vector<Run> const& runs) {
    auto const counts = [](Run const& run) { return run.run_type == Run::RT_Iteration && !run.error_occurred; };
    Run const* least = nullptr;
    for (auto const& run : runs) {
        if (counts(run) && (!least || run.GetAdjustedCPUTime() < least->GetAdjustedCPUTime()))
            least = &run;
    }
    if (!least)
        return;
    auto shown = *least;
    shown.run_name.min_time.clear();
    shown.run_name.repetitions.clear();
    shown.run_name.time_type.clear();
    ConsoleReporter::ReportRuns({shown});

    std::istringstream name(least->run_name.function_name);
    std::string kind;
    std::string measure;
    std::string side;
    std::string count;
    std::getline(std::getline(std::getline(std::getline(name, kind, '/'), measure, '/'), side, '/'), count);
    take({kind, measure}, side, std::stoi(count), least->GetAdjustedCPUTime());
    auto const heap = least->counters.find("heap");
    if (heap != least->counters.end())
        take({kind, "heap"}, side, std::stoi(count), heap->second);
}

void RatioReporter::take(Row const& row, std::string const& side, int count, double figure) {
    if (std::find(rows_.begin(), rows_.end(), row) == rows_.end())
        rows_.push_back(row);
    auto& pair = pairs_[{row, count}];
    (side == "bare" ? pair.bare : pair.plugin) = figure;
}

void RatioReporter::Finalize() {
    ConsoleReporter::Finalize();
    auto& out = GetOutputStream();
    std::set<int> counts;
    for (auto const& entry : pairs_)
        counts.insert(entry.first.second);
    std::sort(rows_.begin(), rows_.end());

    out << "\nplug-in / bare Qt, by number of editors\n" << std::left << std::setw(34) << "" << std::right;
    for (int const count : counts)
        out << std::setw(8) << count;
    out << "\n";
    int above = 0;
    for (auto const& row : rows_) {
        out << std::left << std::setw(22) << row.first << std::setw(12) << row.second << std::right << std::fixed
            << std::setprecision(2);
        for (int const count : counts) {
            auto const found = pairs_.find({row, count});
            if (found == pairs_.end() || found->second.bare == 0 || found->second.plugin == 0) {
                out << std::setw(8) << "-";
                continue;
            }
            double const ratio = found->second.plugin / found->second.bare;
            above += ratio > goal(row) ? 1 : 0;
            out << std::setw(8) << ratio;
        }
        out << "\n";
    }
    out << above << " above their goals\n";
}
