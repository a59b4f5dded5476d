// A window of the panel beside one of bare Qt with the same rows, which are made as late there: how long it takes from
// a change or an edit until the window is painted, to open and to scroll a form of ten thousand values, and what a row
// takes of the heap. Prints a line for each job (Jobs.hpp); the status is 1 if a figure is above its goal.

#include "BenchmarkCase.hpp"
#include "BenchmarkProgram.hpp"
#include "Counting.hpp"
#include "Jobs.hpp"
#include "PanelSides.hpp"
#include "Preview_jobs.hpp"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <lattice/UndoHistory.hpp>
#include <malloc.h>
#include <QAbstractSlider>
#include <QApplication>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>

namespace {

constexpr int manyValues = 10'000;
QSize const usualSize(760, 760);
// High enough for a row of each kind, as on a screen that stands upright.
QSize const highSize(760, 2200);

using MakeSide = std::unique_ptr<PanelSide> (*)(Kinds const&, int, int);

double heapInUse() {
    return static_cast<double>(mallinfo2().uordblks);
}

/// Both sides of a job that differ in nothing but who makes the window.
Job compare(std::string const& name, double goal, std::function<Measurement(MakeSide)> const& prepare) {
    return {name, goal, [prepare] { return prepare(makePanelSide); }, [prepare] { return prepare(makeBareSide); }, {}};
}

/// The same by instructions.
Job compareCounts(std::string const& name, double goal, std::function<Measurement(MakeSide)> const& prepare) {
    auto job = compare(name, goal, prepare);
    job.byInstructions = true;
    return job;
}

/// A window with a row of each kind.
std::shared_ptr<PanelSide> openAllKinds(MakeSide make, int numbers = 0) {
    auto const kinds = allKinds();
    std::shared_ptr<PanelSide> side(make(kinds, static_cast<int>(kinds.size()), numbers));
    side->open(highSize);
    if (side->rowCount() < static_cast<int>(kinds.size()))
        qFatal("A kind of editor is not shown.");
    return side;
}

/// The n-th of some works that are alike, twenty of which are one measurement.
template <typename Work>
Measurement repeated(Work const& work) {
    return [work, n = 0]() mutable {
        return timeOf([&] {
            for (int time = 0; time < 20; ++time) {
                n = 1 - n;
                work(n);
                QCoreApplication::processEvents();
            }
        });
    };
}

/// The program changes a value, which is painted. At first every value is its default, and later every second one is.
Job change(std::string const& kind, double goal) {
    return compareCounts("host change and repaint, " + kind, goal, [kind](MakeSide make) {
        auto const side = openAllKinds(make);
        int const row = kindsNamed({kind}).front();
        return repeated([side, row](int n) { side->change(row, n); });
    });
}

/// A person changes a value, which is painted.
Job edit(std::string const& kind, std::string const& shown, double goal) {
    return compareCounts("edit until painted, " + shown, goal, [kind](MakeSide make) {
        auto const side = openAllKinds(make);
        int const row = kindsNamed({kind}).front();
        return repeated([side, row](int n) {
            auto& editor = *side->editor(row);
            // A wheel turns what has no focus in bare Qt, but not in the panel.
            if (auto* const control = editor.findChild<QAbstractSlider*>(); control && control->parent() == &editor)
                QTest::keyClick(control, n == 0 ? Qt::Key_Left : Qt::Key_Right);
            else
                benchmarkCases()[static_cast<std::size_t>(row)].edit(editor, n);
        });
    });
}

/// A simulation changes ten thousand values, of which one of each kind is shown and painted.
Measurement tick(MakeSide make) {
    auto const kinds = static_cast<int>(allKinds().size());
    auto const side = openAllKinds(make, manyValues - kinds);
    return [side, kinds, n = 0]() mutable {
        n = 1 - n;
        return timeOf([&] {
            side->changeNumbers(n);
            for (int row = 0; row < kinds; ++row)
                side->change(row, n);
            QCoreApplication::processEvents();
        });
    };
}

Measurement openMany(MakeSide make) {
    std::shared_ptr<PanelSide> const side(make(allKinds(), manyValues, 0));
    return [side] {
        auto const time = timeOf([&] { side->open(usualSize); });
        side->close();
        return time;
    };
}

Measurement closeMany(MakeSide make) {
    std::shared_ptr<PanelSide> const side(make(allKinds(), manyValues, 0));
    return [side] {
        side->open(usualSize);
        return timeOf([&] { side->close(); });
    };
}

/// Opens a form in which a row of each kind is seen.
Measurement makeRows(MakeSide make) {
    auto const kinds = allKinds();
    std::shared_ptr<PanelSide> const side(make(kinds, static_cast<int>(kinds.size()), 0));
    return [side] {
        auto const time = timeOf([&] { side->open(highSize); });
        side->close();
        return time;
    };
}

/// What a row of each kind takes, without what a form takes that has no rows.
Measurement heapOfRows(MakeSide make) {
    auto const kinds = allKinds();
    return [make, kinds] {
        auto const takenBy = [&](int count) {
            auto const side = make(kinds, count, 0);
            auto const before = heapInUse();
            side->open(highSize);
            return heapInUse() - before;
        };
        auto const full = takenBy(static_cast<int>(kinds.size()));
        return full - takenBy(0);
    };
}

/// What the form keeps of a parameter whose row was never made.
Measurement heapOfUnmadeRow() {
    return [] {
        auto const takenWith = [](int count) {
            auto const side = makePanelSide(kindsNamed({"double"}), count, 0);
            auto const before = heapInUse();
            side->open(usualSize);
            return heapInUse() - before;
        };
        return (takenWith(2 * manyValues) - takenWith(manyValues)) / manyValues;
    };
}

/// A notch of the wheel after the other until the window is painted, onwards through the form.
Measurement scroll(MakeSide make) {
    std::shared_ptr<PanelSide> const side(make(allKinds(), manyValues, 0));
    side->open(usualSize);
    // Three lines of twenty pixels, as the wheel goes at each notch.
    constexpr int notch = 60;
    return [side] {
        return timeOf([&] {
            for (int time = 0; time < 30; ++time) {
                auto* const bar = side->scrollBar();
                bar->setValue(bar->value() + notch);
                QCoreApplication::processEvents();
            }
        });
    };
}

/// The mouse takes the handle of the scroll bar through the whole form. Gives what a step takes in milliseconds, or the
/// greatest number of rows that there were meanwhile.
Measurement dragScrollBar(bool countRows) {
    std::shared_ptr<PanelSide> const side(makePanelSide(allKinds(), manyValues, 0));
    side->open(usualSize);
    return [side, countRows] {
        auto* const bar = side->scrollBar();
        bar->setValue(0);
        QStyleOptionSlider option;
        option.initFrom(bar);
        option.orientation = Qt::Vertical;
        option.maximum = bar->maximum();
        option.pageStep = bar->pageStep();
        option.subControls = QStyle::SC_All;
        auto const at =
            bar->style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, bar).center();
        QTest::mousePress(bar, Qt::LeftButton, {}, at);
        int most = 0;
        int steps = 0;
        auto const time = timeOf([&] {
            for (int y = at.y(); y < bar->height() - at.y(); y += 2, ++steps) {
                QMouseEvent move(QEvent::MouseMove, QPoint(at.x(), y), Qt::NoButton, Qt::LeftButton, {});
                QCoreApplication::sendEvent(bar, &move);
                QCoreApplication::processEvents();
                most = std::max(most, side->rowCount());
            }
        });
        QTest::mouseRelease(bar, Qt::LeftButton, {}, {at.x(), bar->height() - at.y()});
        if (bar->value() < bar->maximum() / 2)
            qFatal("The scroll bar cannot be dragged.");
        return countRows ? most : time / steps;
    };
}

/// Tab goes over rows that take no focus, to the next control.
Measurement tabOverDisplays() {
    return [] {
        constexpr int displays = 2000;
        auto kinds = Kinds(displays, kindsNamed({"InformationDisplay"}).front());
        auto const box = kindsNamed({"boolean"}).front();
        kinds.insert(kinds.begin(), box);
        kinds.push_back(box);
        auto const side = makePanelSide(kinds, static_cast<int>(kinds.size()), 0);
        side->open(usualSize);
        QTest::qWait(1);
        side->editor(0)->setFocus();
        auto* const before = QApplication::focusWidget();
        auto const time = timeOf([&] {
            QTest::keyClick(before, Qt::Key_Tab);
            QCoreApplication::processEvents();
        });
        if (!before || QApplication::focusWidget() == before)
            qFatal("Tab does not move the focus.");
        return time;
    };
}

/// Words that no row has, and none.
Measurement filterMany(MakeSide make) {
    std::shared_ptr<PanelSide> const side(make(allKinds(), manyValues, 0));
    side->open(usualSize);
    return [side] {
        return timeOf([&] {
            for (auto const* const words : {"noSuchName", ""}) {
                side->filter(QLatin1String(words));
                QCoreApplication::processEvents();
            }
        });
    };
}

/// The marks of all rows go, because what the values are becomes their default.
Measurement hideMarks(MakeSide make) {
    auto const side = openAllKinds(make);
    return [side, n = 0]() mutable {
        n = 1 - n;
        for (int row = 0; row < side->rowCount(); ++row)
            side->change(row, n);
        // Some changes lay out a row only after others did.
        for (int round = 0; round < 5; ++round)
            QCoreApplication::processEvents();
        return timeOf([&] {
            side->rememberDefaults();
            QCoreApplication::processEvents();
        });
    };
}

/// The program changes a value that is shown by its editor and as it is stored.
Measurement changeWithRawValue(MakeSide make) {
    auto const side = openAllKinds(make);
    side->showRawValues();
    QCoreApplication::processEvents();
    int const row = kindsNamed({"double"}).front();
    return repeated([side, row](int n) { side->change(row, n); });
}

/// The program changes a value that two views of one window show.
Measurement changeInTwoViews(MakeSide make) {
    auto const side = openAllKinds(make);
    side->openSecondView();
    int const row = kindsNamed({"double"}).front();
    return repeated([side, row](int n) { side->change(row, n); });
}

/// A person goes to another pool, in which each value of a form is another one.
Measurement switchPools(MakeSide make) {
    auto const side = openAllKinds(make);
    return [side, n = 0]() mutable {
        n = 1 - n;
        return timeOf([&] {
            side->switchPool(n);
            QCoreApplication::processEvents();
        });
    };
}

/// What an undo step keeps of the heap, in kilobytes.
Measurement heapOfStep(BenchmarkCase const& benchmarkCase) {
    return [&benchmarkCase] {
        constexpr int steps = 100;
        Kolt::UndoHistory history;
        auto const parameter = benchmarkCase.makeParameter();
        auto const other = benchmarkCase.makeParameter();
        benchmarkCase.change(*other, 1);
        auto const first = parameter->ownValue()->clone();
        auto const before = heapInUse();
        for (int step = 0; step < steps; ++step)
            if (!history.store(parameter, nullptr, {step % 2 == 0 ? other->ownValue() : first, false}))
                qFatal("The benchmark cannot write the value.");
        if (history.steps().size() != steps)
            qFatal("An edit is no step.");
        return (heapInUse() - before) / steps / 1024;
    };
}

/// A job for each kind of value that people edit.
void addStepJobs(std::vector<Job>& jobs) {
    // A selection has four entries; of a longer one a step keeps hardly more.
    constexpr double kilobytes = 1.5;
    for (auto const& each : benchmarkCases()) {
        auto const name = "undo step, " + each.name;
        bool const isKnown =
            std::any_of(jobs.begin(), jobs.end(), [&name](auto const& job) { return job.name == name; });
        // An action is not changed by its case, but its tool tip.
        if (!isKnown && each.edit && each.name != "action" && each.makeParameter()->isEdited())
            jobs.push_back({name, kilobytes, [&each] { return heapOfStep(each); }, {}, "KB", 3});
    }
}

std::vector<Job> jobs() {
    std::vector<Job> all{
        change("boolean", 1.1),
        change("int", 1.1),
        change("double", 1.1),
        change("simplestring", 1.1),
        edit("boolean", "check box", 1.3),
        edit("int", "key in a number", 1.3),
        edit("multiple selection", "multiple selection", 1.3),
        edit("selection", "drop-down list", 1.3),
        edit("simplestring", "key in a line", 1.3),
        // At 60 Hz 15 % of each frame, on a computer on which bare Qt takes 10.4 %.
        compare("10,000 values at 60 Hz, 23 are painted", 1.44, tick),
        compareCounts("10,000 values change, 23 are painted", 1.3, tick),
        compareCounts("opening 10,000 values", 1.5, openMany),
        compareCounts("closing 10,000 values", 1.5, closeMany),
        compareCounts("every row made", 1.15, makeRows),
        compare("heap of a row", 1.05, heapOfRows),
        {"heap of a row that is not made", 64, heapOfUnmadeRow, {}, "B", 3},
        compareCounts("wheel through 10,000 rows", 1.5, scroll),
        {"scroll-bar drag over 10,000 rows, a step", 5, [] { return dragScrollBar(false); }, {}, "ms", 3},
        {"scroll-bar drag over 10,000 rows, rows", 80, [] { return dragScrollBar(true); }, {}, "", 3},
        {"Tab over 2,000 rows without focus", 20, tabOverDisplays, {}, "ms", 3},
        {"filter 10,000 rows and back", 50, [] { return filterMany(makePanelSide); }, {}, "ms", 5},
        compareCounts("default marks of 23 rows go", 1.5, hideMarks),
        compareCounts("host change and repaint, raw value shown", 1.3, changeWithRawValue),
        compareCounts("host change and repaint, two views", 1.1, changeInTwoViews),
        {"pool switch, 23 rows",
         1.5,
         [] { return switchPools(makePoolSide); },
         [] { return switchPools(makeBareSide); },
         {},
         15,
         true},
    };
    addStepJobs(all);
    addPreviewJobs(all);
    return all;
}

} // namespace

int main(int argc, char** argv) {
    auto const run = [] {
        auto const filter = benchmark::GetBenchmarkFilter();
        if (!isCounting())
            return runJobs(jobs(), filter);
        countJobs(jobs(), filter);
        return 0;
    };
    return runBenchmarkProgram(argc, argv, run);
}
