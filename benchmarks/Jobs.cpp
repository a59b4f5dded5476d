#include "Jobs.hpp"

#include "Counting.hpp"
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

// Under which timeOf() has instructions noted.
std::string countedName;

constexpr int countedRounds = 3;

std::string nameOfOurs(Job const& job) {
    return job.name + "/ours";
}

std::string nameOfBare(Job const& job) {
    return job.name + "/bare";
}

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

void count(Job const& job) {
    auto const ours = job.ours();
    auto const bare = job.bare();
    for (int round = 0; round < countedRounds; ++round) {
        countedName = nameOfOurs(job);
        ours();
        countedName = nameOfBare(job);
        bare();
    }
}

/// The jobs whose names contain a match of the regular expression.
std::vector<Job> chosen(std::vector<Job> jobs, std::string const& filter) {
    std::regex const wanted(filter);
    auto const isUnwanted = [&wanted](auto const& job) { return !std::regex_search(job.name, wanted); };
    jobs.erase(std::remove_if(jobs.begin(), jobs.end(), isUnwanted), jobs.end());
    return jobs;
}

} // namespace

double timeOf(std::function<void()> const& work) {
    auto const start = processorTime();
    if (isCounting())
        counted(countedName, work);
    else
        work();
    return processorTime() - start;
}

void countJobs(std::vector<Job> const& jobs, std::string const& filter) {
    for (auto const& job : chosen(jobs, filter))
        if (job.byInstructions)
            count(job);
}

int runJobs(std::vector<Job> const& jobs, std::string const& filter) {
    auto const wanted = chosen(jobs, filter);
    bool const hasCounted =
        std::any_of(wanted.begin(), wanted.end(), [](auto const& job) { return job.byInstructions; });
    auto const counts = hasCounted ? countInValgrind({"--benchmark_filter=" + filter}) : Counts();
    int above = 0;
    for (auto const& job : wanted) {
        auto const [ours, bare] = job.byInstructions
                                      ? Outcome{median(counts.at(nameOfOurs(job))), median(counts.at(nameOfBare(job)))}
                                      : run(job);
        double const figure = job.bare ? ours / bare : ours;
        std::ostringstream both;
        if (job.bare)
            both << std::setprecision(3) << ours << " to " << bare << (job.byInstructions ? " instructions" : " ms");
        above += printFigure(job.name, figure, job.goal, job.unit, both.str()) ? 1 : 0;
    }
    return above > 0 ? 1 : 0;
}
