#include "Jobs.hpp"

#include "Figures.hpp"

#include <algorithm>
#include <ctime>
#include <iomanip>
#include <regex>
#include <sstream>

namespace {

double median(std::vector<double> figures) {
    auto const middle = figures.begin() + static_cast<std::ptrdiff_t>(figures.size() / 2);
    std::nth_element(figures.begin(), middle, figures.end());
    return *middle;
}

struct Outcome {
    double ours = 0;
    double bare = 0;
};

Outcome run(Job const& job) {
    auto const ours = job.ours();
    auto const bare = job.bare ? job.bare() : [] { return 0.0; };
    ours();
    bare();
    std::vector<double> ofOurs;
    std::vector<double> ofBare;
    // In turn, so that a busy machine is no slower for one side.
    for (int round = 0; round < job.rounds; ++round) {
        ofOurs.push_back(ours());
        ofBare.push_back(bare());
    }
    return {median(ofOurs), median(ofBare)};
}

} // namespace

double processorTime() {
    timespec used{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) * 1e3 + static_cast<double>(used.tv_nsec) / 1e6;
}

double timeOf(std::function<void()> const& work) {
    auto const start = processorTime();
    work();
    return processorTime() - start;
}

int runJobs(std::vector<Job> const& jobs, std::string const& filter) {
    std::regex const wanted(filter);
    int above = 0;
    for (auto const& job : jobs) {
        if (!std::regex_search(job.name, wanted))
            continue;
        auto const [ours, bare] = run(job);
        double const figure = job.bare ? ours / bare : ours;
        std::ostringstream both;
        if (job.bare)
            both << std::setprecision(3) << ours << " to " << bare;
        above += printFigure(job.name, figure, job.goal, job.unit, both.str()) ? 1 : 0;
    }
    return above > 0 ? 1 : 0;
}
