// Typing into a text of one megabyte with many lines: the plug-in's editor beside a bare Qt one that copies its text at
// every trigger. Prints the ratio of the fastest rounds (printFigure); the status is 1 if it is above its goal.

#include "BareTextEditor.hpp"
#include "BenchmarkProgram.hpp"
#include "Figures.hpp"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <checker/ChosenPools.hpp>
#include <map>
#include <memory>
#include <QApplication>
#include <QTest>
#include <QTextEdit>
#include <sorrel/InputFrontEnd.hpp>

namespace {

void type(benchmark::State& state, QTextEdit* editor) {
    if (!editor) {
        state.SkipWithError("there is no editor");
        return;
    }
    QWidget& window = *editor->parentWidget();
    editor->resize(600, 400);
    window.show();
    // A first key lays the text out.
    QTest::keyClick(editor, Qt::Key_X);
    for (auto _ : state)
        QTest::keyClick(editor, Qt::Key_X);
}

void typeIntoBareQt(benchmark::State& state) {
    QWidget window;
    type(state, makeBareTextEditor(&window));
}

void typeIntoThePlugin(benchmark::State& state) {
    Checker::ChosenPools pools;
    pools.use(Kolt::PoolPtr(new Kolt::ValuePool("pool")));
    Kolt::ParameterPtr const parameter(new Kolt::VParameter("object.text", Kolt::makeValue(longText())));
    parameter->setCreationPreferences(
        Kolt::PreferencesPtr(new Kolt::VCreationPreferences(Kolt::VValueTrait<std::string>::MultiLine())));
    QWidget window;
    type(state, dynamic_cast<QTextEdit*>(Kolt::makeEditor(parameter, &window, &pools).widget.data()));
}

/// Keeps the processor time of each benchmark's fastest round, which other programs on the computer change least.
class FastestRounds : public benchmark::ConsoleReporter {
public:
    void ReportRuns(std::vector<Run> const& runs) override {
        for (auto const& run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred)
                continue;
            auto const [known, isNew] = times_.insert({run.run_name.function_name, run.GetAdjustedCPUTime()});
            if (!isNew)
                known->second = std::min(known->second, run.GetAdjustedCPUTime());
        }
        ConsoleReporter::ReportRuns(runs);
    }
    /// 0 where the benchmark did not run.
    double of(std::string const& name) const {
        auto const known = times_.find(name);
        return known == times_.end() ? 0.0 : known->second;
    }

private:
    std::map<std::string, double> times_;
};

} // namespace

int main(int argc, char** argv) {
    return runBenchmarkProgram(argc, argv, [] {
        for (auto const& [name, measure] :
             {std::make_pair("type/bare", &typeIntoBareQt), std::make_pair("type/plugin", &typeIntoThePlugin)})
            benchmark::RegisterBenchmark(name, measure)->MinTime(0.1)->Repetitions(9)->Unit(benchmark::kMicrosecond);
        FastestRounds rounds;
        benchmark::RunSpecifiedBenchmarks(&rounds);
        auto const bare = rounds.of("type/bare");
        auto const plugin = rounds.of("type/plugin");
        if (bare <= 0.0 || plugin <= 0.0)
            return 1;
        return printFigure("key in a text of one megabyte, editor", plugin / bare, 1.2) ? 1 : 0;
    });
}
