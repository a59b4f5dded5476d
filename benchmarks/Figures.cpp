#include "Figures.hpp"

#include <ctime>
#include <iomanip>
#include <iostream>

double processorTime() {
    timespec used{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) * 1e3 + static_cast<double>(used.tv_nsec) / 1e6;
}

bool printFigure(std::string const& job, double figure, double goal, std::string const& unit,
                 std::string const& remark) {
    bool const isAbove = !(figure <= goal);
    std::cout << std::left << std::setw(48) << job << std::right << std::fixed << std::setprecision(2) << std::setw(9)
              << figure << std::setw(9) << goal << " " << std::left << std::setw(3) << unit
              << (isAbove ? "ABOVE" : "ok   ") << "  " << remark << std::endl;
    return isAbove;
}
