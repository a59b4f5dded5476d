// The panel's view of an object with ten thousand parameters of every kind, beside the same rows in a program of bare
// Qt that makes them as they come into sight, too: opening, scrolling, and a simulation that changes every value sixty
// times a second while the rows of all kinds are shown.

#include "BenchmarkCase.hpp"
#include "BenchmarkProgram.hpp"
#include "RatioReporter.hpp"

#include <algorithm>
#include <iostream>
#include <malloc.h>
#include <map>
#include <memory>
#include <panel/window/ObjectView.hpp>
#include <parameters/PoolSource.hpp>
#include <QApplication>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>

namespace {

constexpr int parameterCount = 10'000;
// Three lines of twenty pixels, as the wheel goes at each notch.
constexpr int wheelStep = 60;

double heapInUse() {
    return static_cast<double>(mallinfo2().uordblks);
}

BenchmarkCase const& caseOf(int number) {
    auto const& cases = benchmarkCases();
    return cases[static_cast<std::size_t>(number) % cases.size()];
}

/// A view of many values, by the plug-in or in bare Qt.
class Side {
public:
    virtual ~Side() = default;
    virtual QWidget* widget() = 0;
    virtual QScrollBar* scrollBar() = 0;
    /// How many rows stand.
    virtual std::size_t rowCount() = 0;
    /// The program makes the n-th value, 0 or 1, that of every row.
    virtual void changeRows(int n) = 0;
    /// Adds real numbers that nobody is shown.
    virtual void addNumbers(int count) = 0;
    /// The program changes all of these numbers.
    virtual void changeNumbers(double number) = 0;
};

class OnePool : public Kolt::ValuePoolProvider {
public:
    Kolt::PoolPtr getValuePool() const override { return pool_; }

private:
    Kolt::PoolPtr const pool_{new Kolt::ValuePool};
};

class PanelSide : public Side {
public:
    explicit PanelSide(int count) {
        pools_.setPool(Kolt::PoolPtr(new Kolt::ValuePool("pool")));
        for (int number = 0; number < count; ++number)
            object_->addParameter(caseOf(number).makeParameter());
    }
    ~PanelSide() override { view_.reset(); }

    QWidget* widget() override {
        if (!view_)
            view_ = std::make_unique<Panel::ObjectView>(std::vector<Kolt::ObjectPtr>{object_}, QString(), pools_);
        return view_.get();
    }
    QScrollBar* scrollBar() override { return view_->panel()->rowArea()->verticalScrollBar(); }
    std::size_t rowCount() override { return view_->rows().size(); }
    void changeRows(int n) override {
        int number = 0;
        for (auto const& parameter : object_->parameters())
            caseOf(number++).change(*parameter, n);
    }
    void addNumbers(int count) override {
        for (int number = 0; number < count; ++number)
            simulation_->addParameter(
                Kolt::ParameterPtr(new Kolt::VParameter(std::to_string(number), Kolt::makeValue(0.0))));
    }
    void changeNumbers(double number) override {
        for (auto const& parameter : simulation_->parameters())
            if (!Kolt::setParameterValue(*parameter, number, nullptr, std::string(), false, nullptr, nullptr))
                qFatal("The benchmark cannot write the value.");
    }

private:
    Talo::PoolSource pools_;
    Kolt::ObjectPtr const object_{new Kolt::VObject("object")};
    Kolt::ObjectPtr const simulation_{new Kolt::VObject("simulation")};
    std::unique_ptr<Panel::ObjectView> view_;
};

/// One value of a program of bare Qt, which tells of its changes by a signal. Whoever shows it is an editor that keeps
/// the value, too.
class BareValue : public QObject {
    Q_OBJECT

public:
    void change(int n) {
        value_ = n;
        emit changed(n);
    }

signals:
    void changed(int n);

private:
    int value_ = 0;
};

/// A real number of such a program.
class BareNumber : public QObject {
    Q_OBJECT

public:
    void change(double number) {
        number_ = number;
        emit changed(number);
    }

signals:
    void changed(double number);

private:
    double number_ = 0;
};

/// Rows of fixed height by kind, made as they come into sight and deleted when they are far.
class BareRows : public QScrollArea {
    Q_OBJECT

public:
    explicit BareRows(int count) : values_(static_cast<std::size_t>(count)), content_(new QGroupBox) {
        QWidget probe;
        std::vector<int> heights;
        for (auto const& kind : benchmarkCases()) {
            std::unique_ptr<BareEditor> const editor(kind.makeBare(&probe));
            heights.push_back(qMax(20, editor->widget()->sizeHint().height()));
        }
        for (std::size_t number = 0; number < values_.size(); ++number)
            tops_.push_back(tops_.back() + heights[number % heights.size()] + 6);
        content_->setMinimumSize(400, tops_.back());
        setWidgetResizable(true);
        setFrameShape(NoFrame);
        setWidget(content_);
    }

    std::vector<BareValue>& values() { return values_; }
    std::size_t rowCount() const { return rows_.size(); }

protected:
    void resizeEvent(QResizeEvent* event) override {
        QScrollArea::resizeEvent(event);
        makeVisibleRows();
    }
    void showEvent(QShowEvent* event) override {
        QScrollArea::showEvent(event);
        makeVisibleRows();
    }
    void scrollContentsBy(int dx, int dy) override {
        QScrollArea::scrollContentsBy(dx, dy);
        makeVisibleRows();
    }

private:
    void makeVisibleRows() {
        if (!isVisible())
            return;
        auto const place = [this](int y) {
            auto const next = std::upper_bound(tops_.begin(), tops_.end(), y);
            return static_cast<int>(next - tops_.begin()) - 1;
        };
        int const first = qMax(0, place(-content_->y()));
        int const last = qMin(static_cast<int>(values_.size()) - 1, place(-content_->y() + viewport()->height()));
        for (int number = first; number <= last; ++number)
            if (rows_.count(number) == 0)
                rows_[number] = makeRow(number);
        while (rows_.size() > static_cast<std::size_t>(last - first + 1 + 60)) {
            auto const farthest =
                first - rows_.begin()->first > rows_.rbegin()->first - last ? rows_.begin() : std::prev(rows_.end());
            farthest->second->hide();
            farthest->second->deleteLater();
            rows_.erase(farthest);
        }
    }

    QWidget* makeRow(int number) {
        auto const place = static_cast<std::size_t>(number);
        auto* const row = new QWidget(content_);
        auto* const layout = new QHBoxLayout(row);
        layout->setContentsMargins(0, 0, 0, 0);
        auto* const name = new QLabel(QStringLiteral("parameter"));
        name->setToolTip(QStringLiteral("parameter"));
        layout->addWidget(name);
        auto* const editor = caseOf(number).makeBare(row);
        layout->addWidget(editor->widget(), 1);
        name->setBuddy(editor->widget());
        editor->widget()->setAccessibleName(QStringLiteral("parameter"));
        connect(&values_[place], &BareValue::changed, editor->widget(), [editor](int n) { editor->change(n); });
        row->setGeometry(12, tops_[place], content_->width() - 24, tops_[place + 1] - tops_[place] - 6);
        row->show();
        return row;
    }

    std::vector<BareValue> values_;
    // Of each row, and behind the last one.
    std::vector<int> tops_{0};
    QGroupBox* const content_;
    std::map<int, QWidget*> rows_;
};

class BareSide : public Side {
public:
    explicit BareSide(int count) : count_(count) {}
    QWidget* widget() override {
        if (!rows_)
            rows_ = std::make_unique<BareRows>(count_);
        return rows_.get();
    }
    QScrollBar* scrollBar() override { return rows_->verticalScrollBar(); }
    std::size_t rowCount() override { return rows_->rowCount(); }
    void changeRows(int n) override {
        for (auto& value : rows_->values())
            value.change(n);
    }
    void addNumbers(int count) override { numbers_ = std::vector<BareNumber>(static_cast<std::size_t>(count)); }
    void changeNumbers(double number) override {
        for (auto& each : numbers_)
            each.change(number);
    }

private:
    std::vector<BareNumber> numbers_;
    int const count_;
    std::unique_ptr<BareRows> rows_;
};

void show(Side& side, QSize const& size) {
    side.widget()->resize(size);
    side.widget()->show();
    QCoreApplication::processEvents();
}

QSize const windowSize(760, 760);

/// From the values to the painted window.
template <typename TheSide>
void open(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        {
            TheSide side(parameterCount);
            state.ResumeTiming();
            show(side, windowSize);
            state.PauseTiming();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        state.ResumeTiming();
    }
}

// By side: the longest step of a scroll, in milliseconds.
std::map<std::string, double>& longestSteps() {
    static std::map<std::string, double> steps;
    return steps;
}

/// One notch of the wheel until the window is painted, onwards through the parameters.
template <typename TheSide>
void scroll(benchmark::State& state, std::string const& name) {
    TheSide side(parameterCount);
    show(side, windowSize);
    double longest = 0;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        auto* const bar = side.scrollBar();
        bar->setValue(bar->value() + wheelStep < bar->maximum() ? bar->value() + wheelStep : 0);
        QCoreApplication::processEvents();
        longest = std::max(longest, static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    auto& known = longestSteps()[name];
    known = std::max(known, longest);
}

/// A simulation changes ten thousand values, of which one of each kind is shown, and what is shown is painted.
template <typename TheSide>
void tick(benchmark::State& state) {
    auto const kinds = benchmarkCases().size();
    TheSide side(static_cast<int>(kinds));
    side.addNumbers(parameterCount - static_cast<int>(kinds));
    // High enough for one row of each kind, as on a screen that stands upright.
    show(side, {760, 2200});
    if (side.rowCount() < kinds) {
        state.SkipWithError("not every kind is shown");
        return;
    }
    int n = 0;
    for (auto _ : state) {
        n = 1 - n;
        side.changeNumbers(n);
        side.changeRows(n);
        QCoreApplication::processEvents();
    }
}

/// The heap that one row of each kind takes, before it is painted for the first time.
template <typename TheSide>
void rows(benchmark::State& state) {
    double heap = 0;
    auto const kinds = static_cast<int>(benchmarkCases().size());
    for (auto _ : state) {
        state.PauseTiming();
        {
            TheSide empty(0);
            TheSide full(kinds);
            auto const before = heapInUse();
            show(empty, {760, 2200});
            auto const between = heapInUse();
            state.ResumeTiming();
            show(full, {760, 2200});
            state.PauseTiming();
            heap += (heapInUse() - between) - (between - before);
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        state.ResumeTiming();
    }
    state.counters["heap"] = benchmark::Counter(heap / kinds, benchmark::Counter::kAvgIterations);
}

template <typename TheSide>
void add(std::string const& side) {
    auto const add = [&](std::string const& measure, int count, auto run) {
        benchmark::RegisterBenchmark(("network/" + measure + "/" + side + "/" + std::to_string(count)).c_str(), run)
            ->MeasureProcessCPUTime()
            ->Unit(benchmark::kMicrosecond)
            ->MinTime(0.2)
            ->Repetitions(5);
    };
    add("open", parameterCount, open<TheSide>);
    add("scroll", parameterCount, [side](auto& state) { scroll<TheSide>(state, side); });
    add("tick", parameterCount, tick<TheSide>);
    add("rows", static_cast<int>(benchmarkCases().size()), rows<TheSide>);
}

} // namespace

int main(int argc, char** argv) {
    return runBenchmarkProgram(argc, argv, [] {
        add<BareSide>("bare");
        add<PanelSide>("plug-in");
        RatioReporter reporter;
        benchmark::RunSpecifiedBenchmarks(&reporter);
        for (auto const& [side, longest] : longestSteps())
            std::cout << "The longest step of the scroll took " << longest << " ms (" << side
                      << "); a frame is 16 ms.\n";
        return 0;
    });
}

#include "Network_benchmark.moc"
