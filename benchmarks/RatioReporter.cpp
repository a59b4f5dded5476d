#include "RatioReporter.hpp"

#include "Figures.hpp"

#include <algorithm>
#include <iterator>
#include <sstream>

namespace {

// What the plug-in's editor may take of what the bare one takes.
constexpr double goal = 1.1;

} // namespace

void RatioReporter::ReportRuns(std::vector<Run> const& runs) {
    auto const counts = [](Run const& run) { return run.run_type == Run::RT_Iteration && !run.error_occurred; };
    std::vector<Run> counted;
    std::copy_if(runs.begin(), runs.end(), std::back_inserter(counted), counts);
    if (counted.empty())
        return;
    auto const middle = counted.begin() + static_cast<std::ptrdiff_t>(counted.size() / 2);
    std::nth_element(counted.begin(), middle, counted.end(), [](Run const& left, Run const& right) {
        return left.GetAdjustedCPUTime() < right.GetAdjustedCPUTime();
    });
    std::istringstream name(middle->run_name.function_name);
    std::string kind;
    std::string measure;
    std::string side;
    std::string count;
    std::getline(std::getline(std::getline(std::getline(name, kind, '/'), measure, '/'), side, '/'), count);
    take({kind, measure}, side, std::stoi(count), middle->GetAdjustedCPUTime());
    auto const heap = middle->counters.find("heap");
    if (heap != middle->counters.end())
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
    std::sort(rows_.begin(), rows_.end());
    for (auto const& row : rows_)
        for (auto const& [key, pair] : pairs_)
            if (key.first == row && pair.bare > 0 && pair.plugin > 0)
                above_ += printFigure(row.first + ", " + row.second + ", " + std::to_string(key.second),
                                      pair.plugin / pair.bare, goal)
                              ? 1
                              : 0;
}
