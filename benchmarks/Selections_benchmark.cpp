// What the actions of the multiple selection cost on lists of 100, 10,000 and 100,000 strings, each with everything
// that it makes the editor do until it stands drawn again. At the end each action is held against the goals: 0.1 s on
// 100,000 strings, 1.0 s for filling the list anew, and at most 15 times the cost of 10,000 strings.

#include "BenchmarkProgram.hpp"
#include "Figures.hpp"

#include <benchmark/benchmark.h>
#include <bramble/MultipleStringSelection.hpp>
#include <functional>
#include <map>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <sorrel/InputFrontEnd.hpp>

namespace {

using Kolt::VMultipleStringList;

constexpr std::int64_t mediumSize = 10000;
constexpr std::int64_t largeSize = 100000;
constexpr double actionGoal = 0.1;
constexpr double refillGoal = 1.0;
constexpr double growthGoal = 15.0;

class Pools : public Kolt::ValuePoolSource {
public:
    Tessera::StrongPtr<Kolt::ValuePoolProvider> getValuePoolProvider() const override { return provider_; }

private:
    struct Provider : Kolt::ValuePoolProvider {
        Kolt::PoolPtr getValuePool() const override { return pool; }
        Kolt::PoolPtr pool{new Kolt::ValuePool("draft")};
    };
    Tessera::StrongPtr<Provider, Kolt::ValuePoolProvider> provider_{new Provider};
};

/// One editor of a list of strings, shown.
class Subject {
public:
    explicit Subject(std::int64_t size) {
        std::vector<std::string> strings;
        for (std::int64_t n = 0; n < size; ++n)
            strings.push_back("frame_" + std::to_string(n) + ".png");
        selection_ = VMultipleStringList(new Kolt::MultipleStringSelection(std::move(strings)));
        parameter_ = Kolt::ParameterPtr(new Kolt::VParameter("frames", Kolt::makeValue(selection_)));
        editor_ = Kolt::makeEditor(parameter_, &window_, &pools_);
        window_.resize(800, 600);
        window_.show();
        list_ = editor_.widget->findChild<QListWidget*>();
        wildcard_ = editBelow("Wildcard:");
        numbers_ = editBelow("By Number:");
        QCoreApplication::processEvents();
    }

    void press(char const* label) {
        for (auto* const button : editor_.widget->findChildren<QPushButton*>()) {
            if (button->text() == QLatin1String(label))
                QTest::mousePress(button, Qt::LeftButton);
        }
        QCoreApplication::processEvents();
    }
    void enterWildcard(char const* text) { enter(wildcard_, text); }
    void enterNumbers(std::string const& text) { enter(numbers_, text); }
    void remove(bool on) { editor_.widget->findChild<QCheckBox*>()->setChecked(on); }
    void clickFirstRow() {
        QTest::mouseClick(list_->viewport(), Qt::LeftButton, {}, list_->visualItemRect(list_->item(0)).center());
        QCoreApplication::processEvents();
    }
    void tellOfChange() {
        parameter_->notifyValueChange(parameter_->ownValue(), nullptr, std::string(), nullptr, nullptr, nullptr);
        QCoreApplication::processEvents();
    }
    int size() const { return list_->count(); }

private:
    QLineEdit* editBelow(char const* label) const {
        auto const edits = editor_.widget->findChildren<QLineEdit*>();
        auto const labels = editor_.widget->findChildren<QLabel*>();
        return labels.front()->text() == QLatin1String(label) ? edits.front() : edits.back();
    }
    static void enter(QLineEdit* edit, std::string const& text) {
        edit->setText(QString::fromStdString(text));
        QTest::keyClick(edit, Qt::Key_Return);
        QCoreApplication::processEvents();
    }

    Pools pools_;
    VMultipleStringList selection_;
    Kolt::ParameterPtr parameter_;
    QWidget window_;
    Kolt::Editor editor_;
    QListWidget* list_ = nullptr;
    QLineEdit* wildcard_ = nullptr;
    QLineEdit* numbers_ = nullptr;
};

/// An action and the state on which it is measured.
struct Action {
    char const* name;
    std::function<void(Subject&)> prepare;
    std::function<void(Subject&)> act;
    double goal = actionGoal;
};

std::vector<Action> const& actions() {
    auto const none = [](Subject& subject) {
        subject.remove(false);
        subject.press("None");
    };
    auto const everySecond = [none](Subject& subject) {
        none(subject);
        subject.enterNumbers("2nd");
    };
    static std::vector<Action> const all = {
        {"All", everySecond, [](Subject& subject) { subject.press("All"); }},
        {"None", everySecond, [](Subject& subject) { subject.press("None"); }},
        {"Inverse", everySecond, [](Subject& subject) { subject.press("Inverse"); }},
        {"2nd", none, [](Subject& subject) { subject.enterNumbers("2nd"); }},
        {"4th+2 over 2nd", everySecond, [](Subject& subject) { subject.enterNumbers("4th+2"); }},
        {"0-(N-1)", everySecond,
         [](Subject& subject) { subject.enterNumbers("0-" + std::to_string(subject.size() - 1)); }},
        {"*9*", none, [](Subject& subject) { subject.enterWildcard("*9*"); }},
        {"*9* with remove",
         [](Subject& subject) {
             subject.press("All");
             subject.remove(true);
         },
         [](Subject& subject) { subject.enterWildcard("*9*"); }},
        {"row click", everySecond, [](Subject& subject) { subject.clickFirstRow(); }},
        {"refill", everySecond, [](Subject& subject) { subject.tellOfChange(); }, refillGoal},
    };
    return all;
}

void measure(benchmark::State& state, Action const& action) {
    Subject subject(state.range(0));
    for ([[maybe_unused]] auto const iteration : state) {
        state.PauseTiming();
        action.prepare(subject);
        state.ResumeTiming();
        action.act(subject);
    }
}

/// Shows the measurements as usual, and keeps them.
class GoalReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(std::vector<Run> const& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (auto const& run : runs) {
            // Processor time, so that whatever else runs on the machine does not count.
            auto const iterations = static_cast<double>(run.iterations > 0 ? run.iterations : 1);
            seconds_[run.run_name.function_name + "/" + run.run_name.args] = run.cpu_accumulated_time / iterations;
        }
    }

    /// Whether all goals that were measured are met; prints each.
    bool judge() const {
        bool allMet = true;
        for (auto const& action : actions()) {
            auto const large = seconds_.find(action.name + ("/" + std::to_string(largeSize)));
            auto const medium = seconds_.find(action.name + ("/" + std::to_string(mediumSize)));
            if (large == seconds_.end() || medium == seconds_.end())
                continue;
            double const growth = large->second / medium->second;
            auto const name = std::string("list of 100,000, ") + action.name;
            bool const isSlow = printFigure(name, large->second * 1000, action.goal * 1000, "ms");
            bool const growsFast = printFigure(name + ", growth from 10,000", growth, growthGoal);
            allMet = allMet && !isSlow && !growsFast;
        }
        return allMet;
    }

private:
    std::map<std::string, double> seconds_;
};

} // namespace

int main(int argc, char** argv) {
    return runBenchmarkProgram(argc, argv, [] {
        for (auto const& action : actions())
            benchmark::RegisterBenchmark(action.name, measure, action)
                ->Arg(100)
                ->Arg(mediumSize)
                ->Arg(largeSize)
                ->Unit(benchmark::kMillisecond);
        GoalReporter reporter;
        benchmark::RunSpecifiedBenchmarks(&reporter);
        return reporter.judge() ? 0 : 1;
    });
}
