#include "BenchmarkCase.hpp"
#include "BenchmarkProgram.hpp"
#include "RatioReporter.hpp"
#include "Sides.hpp"

#include <iostream>
#include <lattice/InputRegistry.hpp>
#include <malloc.h>
#include <QApplication>

namespace {

/// The bytes that the process has from the heap.
double heapInUse() {
    auto const info = mallinfo2();
    return static_cast<double>(info.uordblks);
}

/// Creation of all editors until the window is painted; the heap that they take before that, as the picture of the
/// window is larger than they are.
template <typename TheSide>
void create(benchmark::State& state, BenchmarkCase const& benchmarkCase, int count) {
    double heap = 0;
    for (auto _ : state) {
        state.PauseTiming();
        {
            TheSide side(benchmarkCase, count);
            EditorWindow window;
            auto const before = heapInUse();
            state.ResumeTiming();
            window.fill(side, count);
            state.PauseTiming();
            heap += heapInUse() - before;
            state.ResumeTiming();
            window.show();
            state.PauseTiming();
        }
        // What the window gave to deleteLater goes as well.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        state.ResumeTiming();
    }
    state.counters["heap"] = benchmark::Counter(heap / count, benchmark::Counter::kAvgIterations);
}

/// A change by the program until it is painted, or only until the controls know of it.
template <typename TheSide>
void change(benchmark::State& state, BenchmarkCase const& benchmarkCase, int count, bool painted) {
    TheSide side(benchmarkCase, count);
    EditorWindow window;
    window.fill(side, count);
    window.show();
    int n = 0;
    for (auto _ : state) {
        n = 1 - n;
        side.change(n);
        if (painted)
            QCoreApplication::processEvents();
    }
}

/// An edit by the user until it is painted.
template <typename TheSide>
void edit(benchmark::State& state, BenchmarkCase const& benchmarkCase, int count) {
    TheSide side(benchmarkCase, count);
    EditorWindow window;
    window.fill(side, count);
    window.show();
    int n = 0;
    for (auto _ : state) {
        n = 1 - n;
        benchmarkCase.edit(window.first(), n);
        QCoreApplication::processEvents();
    }
}

/// A drag of the control over a thousand positions, painted at its end.
template <typename TheSide>
void drag(benchmark::State& state, BenchmarkCase const& benchmarkCase, int count) {
    TheSide side(benchmarkCase, count);
    EditorWindow window;
    window.fill(side, count);
    window.show();
    for (auto _ : state) {
        benchmarkCase.drag(window.first());
        QCoreApplication::processEvents();
    }
}

template <typename TheSide>
void add(BenchmarkCase const& benchmarkCase, char const* sideName) {
    auto name = benchmarkCase.name;
    for (auto const& preference : benchmarkCase.preferences)
        name += " " + preference;
    for (int const count : {1, 10, 100, 1000}) {
        auto const add = [&](char const* measure, auto run) {
            benchmark::RegisterBenchmark((name + "/" + measure + "/" + sideName + "/" + std::to_string(count)).c_str(),
                                         run)
                ->MeasureProcessCPUTime()
                ->MinTime(0.02)
                ->Repetitions(9);
        };
        add("create", [&, count](auto& state) { create<TheSide>(state, benchmarkCase, count); });
        add("change", [&, count](auto& state) { change<TheSide>(state, benchmarkCase, count, true); });
        add("told", [&, count](auto& state) { change<TheSide>(state, benchmarkCase, count, false); });
        if (benchmarkCase.edit)
            add("edit", [&, count](auto& state) { edit<TheSide>(state, benchmarkCase, count); });
        if (benchmarkCase.drag)
            add("drag", [&, count](auto& state) { drag<TheSide>(state, benchmarkCase, count); });
    }
}

/// The creators of the plug-in for which there is no case.
void tellMissingCases() {
    for (auto const& entry : Kolt::InputRegistry::theRegistry().entries()) {
        auto const creator = entry.creator.strong();
        bool found = false;
        for (auto const& benchmarkCase : benchmarkCases())
            found = found || benchmarkCase.creator == creator->Name();
        if (!found)
            std::cout << "No benchmark for \"" << creator->Name() << "\" of " << entry.valueType << "\n";
    }
}

} // namespace

int main(int argc, char** argv) {
    auto const run = [] {
        for (auto const& benchmarkCase : benchmarkCases()) {
            add<BareSide>(benchmarkCase, "bare");
            add<PluginSide>(benchmarkCase, "plug-in");
        }
        RatioReporter reporter;
        benchmark::RunSpecifiedBenchmarks(&reporter);
        tellMissingCases();
#ifndef NDEBUG
        std::cout << "This build is not optimised: its figures say little.\n";
#endif
        return reporter.above() > 0 ? 1 : 0;
    };
    // Both sides take turns, so that a busy machine is no slower for one of them.
    return runBenchmarkProgram(argc, argv, run, {"--benchmark_enable_random_interleaving=true"});
}
