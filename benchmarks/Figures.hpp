#pragma once

#include <string>

/// The processor time that the process has used, in milliseconds.
double processorTime();

/// Prints a line of the table to standard output: "job  figure  goal  unit  ok", or "ABOVE" in place of "ok". A ratio
/// has no unit. `remark` is behind that. Says whether the figure is above the goal; one that is no number is.
bool printFigure(std::string const& job, double figure, double goal, std::string const& unit = {},
                 std::string const& remark = {});
