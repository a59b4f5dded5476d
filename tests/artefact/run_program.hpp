#pragma once

#include <cstdio>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <vector>

/// The lines that a program printed to standard output (and to standard error, if the command redirects it), and its
/// exit status; -1 if it did not exit normally.
struct ProgramRun {
    int status = -1;
    std::vector<std::string> lines;
};

/// Runs a shell command and waits for its end.
inline ProgramRun runProgram(std::string const& command) {
    ProgramRun run;
    FILE* const pipe = popen(command.c_str(), "r");
    if (!pipe) {
        ADD_FAILURE() << "cannot start " << command;
        return run;
    }
    std::string output;
    char buffer[4096];
    while (auto const count = fread(buffer, 1, sizeof buffer, pipe))
        output.append(buffer, count);
    int const status = pclose(pipe);
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    std::istringstream stream(output);
    for (std::string line; std::getline(stream, line);)
        run.lines.push_back(line);
    return run;
}

/// A file name as one word of a shell command.
inline std::string quoted(std::string const& file) {
    return "'" + file + "'";
}
