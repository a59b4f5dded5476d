// Starts the real panel with a network of 11,659 parameters, and with the network that it opens by default, until the
// window is drawn. Prints the ratios of time and memory (printFigure), which are to be below 1.5; the status is 1 if
// one is above.

#include "Figures.hpp"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int parameterCount = 11659;
constexpr int repetitions = 7;
constexpr double goal = 1.5;

/// What one start took; of several the least, as only noise makes one larger.
struct Cost {
    double wall = 1e9;      ///< in milliseconds
    double processor = 1e9; ///< in milliseconds
    double memory = 1e9;    ///< the largest resident set, in megabytes
};

double milliseconds(timeval const& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

/// Draws the panel with a network; ends the program if that fails.
void measure(std::string const& network, std::string const& picture, Cost& cost) {
    auto const start = std::chrono::steady_clock::now();
    pid_t const child = fork();
    if (child == 0) {
        std::freopen("/dev/null", "w", stdout);
        execl(TALO_PANEL, TALO_PANEL, network.c_str(), "--size", "1100x800", "--screenshot", picture.c_str(),
              static_cast<char*>(nullptr));
        std::_Exit(127);
    }
    int status = 0;
    rusage used{};
    if (child < 0 || wait4(child, &status, 0, &used) != child || status != 0) {
        std::fprintf(stderr, "The panel cannot be started with %s.\n", network.c_str());
        std::exit(1);
    }
    std::chrono::duration<double, std::milli> const wall = std::chrono::steady_clock::now() - start;
    cost.wall = std::min(cost.wall, wall.count());
    cost.processor = std::min(cost.processor, milliseconds(used.ru_utime) + milliseconds(used.ru_stime));
    cost.memory = std::min(cost.memory, static_cast<double>(used.ru_maxrss) / 1024);
}

/// Whether the ratio is above its goal.
bool print(std::string const& what, double usual, double large) {
    return printFigure("start with 11,659 parameters, " + what, large / usual, goal, {},
                       std::to_string(large) + " to " + std::to_string(usual));
}

} // namespace

int main() {
    std::array<char, 32> folder{"/tmp/talo_opening_XXXXXX"};
    if (!mkdtemp(folder.data()))
        return 1;
    auto const place = std::string(folder.data());
    auto const large = place + "/large.json";
    auto const picture = place + "/panel.png";
    auto const make =
        std::string(TALO_SCRIPTS "/transfer_network --parameters ") + std::to_string(parameterCount) + " > " + large;
    if (std::system(make.c_str()) != 0)
        return 1;
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("XDG_RUNTIME_DIR", folder.data(), 1);
    Cost usual;
    Cost many;
    for (int round = 0; round < repetitions; ++round) {
        measure(TALO_EXAMPLES "/networks/fractal.json", picture, usual);
        measure(large, picture, many);
    }
    bool const isWallAbove = print("ms", usual.wall, many.wall);
    bool const isProcessorAbove = print("ms of the processor", usual.processor, many.processor);
    bool const isMemoryAbove = print("MB", usual.memory, many.memory);
    bool const isRemoved = std::system(("rm -r " + place).c_str()) == 0;
    return isRemoved && !isWallAbove && !isProcessorAbove && !isMemoryAbove ? 0 : 1;
}
