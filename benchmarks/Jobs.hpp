#pragma once

#include <functional>
#include <string>
#include <vector>

/// Does the work of a job once and returns what it took. What it works on lives as long as the function.
using Measurement = std::function<double()>;

/// One line of the table: work that is done on both sides in turn.
struct Job {
    std::string name;
    /// What the printed figure shall not exceed.
    double goal = 0;
    /// Prepares the work of the project, and that of bare Qt. Without the latter the figure is that of the project
    /// itself, in `unit`, and otherwise the ratio of both.
    std::function<Measurement()> ours;
    std::function<Measurement()> bare;
    std::string unit;
    /// How often each side works. The medians count, after one round that does not.
    int rounds = 15;
    /// Whether the instructions count that timeOf() sees, which it is to be called for once in each round, and not the
    /// time.
    bool byInstructions = false;
};

/// The processor time that the work takes, in milliseconds. Notes its instructions where they are counted.
double timeOf(std::function<void()> const& work);

/// Does the jobs by instructions whose names contain a match, for runJobs(); in valgrind, which counts.
void countJobs(std::vector<Job> const& jobs, std::string const& filter);

/// Runs the jobs whose names contain a match of the regular expression `filter`; an empty one runs all. Prints a line
/// for each (printFigure) with the figures of both sides as its remark. Returns 1 if a figure is above its goal, else
/// 0.
int runJobs(std::vector<Job> const& jobs, std::string const& filter);
