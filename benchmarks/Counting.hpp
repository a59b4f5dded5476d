#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

/// How many instructions each measurement with a name took, in their order.
using Counts = std::map<std::string, std::vector<double>>;

/// Whether valgrind runs this program, and counts. Without it counted() only works.
bool isCounting();

/// Does the work and has valgrind note under the name how many instructions it took. The name must be one line.
void counted(std::string const& name, std::function<void()> const& work);

/// Runs this program once more, in valgrind, with these arguments and returns what it noted. Ends the program with
/// status 2 and a line on standard error where that fails.
Counts countInValgrind(std::vector<std::string> const& arguments);
