#pragma once

#include <functional>
#include <string>
#include <vector>

/// What all programs of benchmarks do first and last: offscreen and silent, so that neither a display nor what the
/// editors print is measured, with the plug-in loaded while `body` registers benchmarks and runs them. Results go to
/// std::cout. `defaults` are options of the benchmarks that those of the user overrule.
///
/// The program's status: what `body` returns, or 2 and a line on standard error when the options are wrong or the
/// plug-in cannot be loaded.
int runBenchmarkProgram(int argc, char** argv, std::function<int()> const& body,
                        std::vector<std::string> defaults = {});
