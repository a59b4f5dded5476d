#include "BenchmarkCase.hpp"

std::vector<BenchmarkCase> const& benchmarkCases() {
    static auto const cases = [] {
        std::vector<BenchmarkCase> all;
        addBooleanBenchmarks(all);
        addNumberBenchmarks(all);
        addSelectionBenchmarks(all);
        addActionBenchmarks(all);
        addTextBenchmarks(all);
        return all;
    }();
    return cases;
}
