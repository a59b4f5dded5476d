// Starts the real panel until the window is drawn: with a network of 11,659 parameters beside the network that it opens
// by default, and with a network of a few parameters beside a program of bare Qt that shows the same widgets. Prints
// the ratios of time and memory (printFigure); the status is 1 if one is above its goal.

#include "Figures.hpp"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int parameterCount = 11659;
constexpr int repetitions = 7;
constexpr double largeGoal = 1.5;
// Against bare Qt.
constexpr double processorGoal = 1.4;
constexpr double memoryGoal = 1.1;

// Eight parameters are shown. Nothing in it computes a picture.
constexpr char fewParameters[] = R"({"pools": ["day", "night"], "objects": [
    {"name": "lamp", "parameters": [
        {"name": "kind", "type": "enum", "value": "sine", "entries": ["sine", "noise", "spiral", "plasma"]},
        {"name": "number", "type": "int", "value": 250, "properties": {"min": 0, "max": 1000}},
        {"name": "dial", "type": "int", "value": 250, "preferences": ["dial"]},
        {"name": "turn", "type": "int", "value": 250, "preferences": ["dial", "periodic"]},
        {"name": "share", "type": "double", "value": 0.25},
        {"name": "angle", "type": "double", "value": 0.25, "preferences": ["dial"]},
        {"name": "phase", "type": "double", "value": 0.25, "preferences": ["dial", "periodic"]},
        {"name": "on", "type": "bool", "value": false}]},
    {"name": "a", "parameters": []}, {"name": "b", "parameters": []}, {"name": "c", "parameters": []},
    {"name": "d", "parameters": []}, {"name": "e", "parameters": []}]})";

/// What one start took; of several the least, as only noise makes one larger.
struct Cost {
    double wall = 1e9;      ///< in milliseconds
    double processor = 1e9; ///< in milliseconds
    double memory = 1e9;    ///< the largest resident set, in megabytes
};

double milliseconds(timeval const& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

/// Runs a program that draws a window and ends; ends this one if that fails.
void measure(std::vector<std::string> const& command, Cost& cost) {
    auto const start = std::chrono::steady_clock::now();
    pid_t const child = fork();
    if (child == 0) {
        std::freopen("/dev/null", "w", stdout);
        std::vector<char*> arguments;
        for (auto const& argument : command)
            arguments.push_back(const_cast<char*>(argument.c_str()));
        arguments.push_back(nullptr);
        execv(arguments.front(), arguments.data());
        std::_Exit(127);
    }
    int status = 0;
    rusage used{};
    if (child < 0 || wait4(child, &status, 0, &used) != child || status != 0) {
        std::fprintf(stderr, "%s cannot be started.\n", command.front().c_str());
        std::exit(1);
    }
    std::chrono::duration<double, std::milli> const wall = std::chrono::steady_clock::now() - start;
    cost.wall = std::min(cost.wall, wall.count());
    cost.processor = std::min(cost.processor, milliseconds(used.ru_utime) + milliseconds(used.ru_stime));
    cost.memory = std::min(cost.memory, static_cast<double>(used.ru_maxrss) / 1024);
}

/// The command that draws the panel with a network into a file.
std::vector<std::string> panelWith(std::string const& network, std::string const& picture) {
    return {TALO_PANEL, network, "--no-session", "--size", "1100x800", "--screenshot", picture};
}

/// Whether the ratio is above its goal.
bool print(std::string const& what, double figure, double base, double goal) {
    return printFigure(what, figure / base, goal, {}, std::to_string(figure) + " to " + std::to_string(base));
}

/// Whether a figure is above its goal.
bool compareNetworks(std::string const& place) {
    auto const large = place + "/large.json";
    auto const make =
        std::string(TALO_SCRIPTS "/transfer_network --parameters ") + std::to_string(parameterCount) + " > " + large;
    if (std::system(make.c_str()) != 0)
        return true;
    Cost usual;
    Cost many;
    for (int round = 0; round < repetitions; ++round) {
        measure(panelWith(TALO_EXAMPLES "/networks/fractal.json", place + "/panel.png"), usual);
        measure(panelWith(large, place + "/panel.png"), many);
    }
    std::string const job = "start with 11,659 parameters, ";
    bool const isWallAbove = print(job + "ms", many.wall, usual.wall, largeGoal);
    bool const isProcessorAbove = print(job + "ms of the processor", many.processor, usual.processor, largeGoal);
    bool const isMemoryAbove = print(job + "MB", many.memory, usual.memory, largeGoal);
    return isWallAbove || isProcessorAbove || isMemoryAbove;
}

/// Whether a figure is above its goal.
bool compareWithBareQt(std::string const& place) {
    auto const few = place + "/few.json";
    std::ofstream(few) << fewParameters;
    Cost ours;
    Cost bare;
    for (int round = 0; round < 3 * repetitions; ++round) {
        // Without compression, which would take longer than the start.
        measure(panelWith(few, place + "/panel.ppm"), ours);
        measure({TALO_BARE_START, place + "/bare.ppm"}, bare);
    }
    bool const isProcessorAbove = print("start, ms of the processor", ours.processor, bare.processor, processorGoal);
    bool const isMemoryAbove = print("start, MB", ours.memory, bare.memory, memoryGoal);
    return isProcessorAbove || isMemoryAbove;
}

} // namespace

int main() {
    std::array<char, 32> folder{"/tmp/talo_opening_XXXXXX"};
    if (!mkdtemp(folder.data()))
        return 1;
    auto const place = std::string(folder.data());
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("XDG_RUNTIME_DIR", folder.data(), 1);
    bool const isStartAbove = compareWithBareQt(place);
    bool const isLargeAbove = compareNetworks(place);
    bool const isRemoved = std::system(("rm -r " + place).c_str()) == 0;
    return isRemoved && !isStartAbove && !isLargeAbove ? 0 : 1;
}
