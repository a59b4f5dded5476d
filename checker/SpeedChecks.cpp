#include <algorithm>
#include <checker/Check.hpp>
#include <checker/ChosenPools.hpp>
#include <checker/LoadedPlugin.hpp>
#include <checker/SampleValues.hpp>
#include <cmath>
#include <limits>
#include <QApplication>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QScrollBar>
#include <sorrel/InputFrontEnd.hpp>

namespace Checker {

namespace {

// How much longer than the plainest editor of bare Qt one may take. Far above every good editor: what it is to find
// waits, or does work that grows.
constexpr double creationLimit = 200;
constexpr double changeLimit = 500;

// In nanoseconds: what nobody notices is not too long, however quick the plainest editor is.
constexpr qint64 unnoticed = 20'000'000;

constexpr int rounds = 9;

/// In nanoseconds, the shortest of several rounds: whatever else the machine does makes a round longer only.
template <typename Function>
qint64 shortestTime(Function const& function) {
    auto shortest = std::numeric_limits<qint64>::max();
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer time;
        time.start();
        function();
        shortest = std::min(shortest, time.nsecsElapsed());
    }
    return shortest;
}

void compareTimes(qint64 ours, qint64 plain, double limit, char const* what, Findings& findings) {
    auto const ratio = static_cast<double>(ours) / static_cast<double>(plain);
    findings.expect(ours < unnoticed || ratio < limit,
                    std::string(what) + " takes " + std::to_string(std::lround(ratio)) +
                        " times as long as in the plainest editor, more than " + std::to_string(std::lround(limit)));
}

/// A line edit and a slider in a row.
class PlainEditor : public QWidget {
public:
    explicit PlainEditor(QWidget* parent) : QWidget(parent) {
        auto* const layout = new QHBoxLayout(this);
        layout->addWidget(text_ = new QLineEdit(this));
        layout->addWidget(new QScrollBar(Qt::Horizontal, this));
    }
    void showText(QString const& text) { text_->setText(text); }

private:
    QLineEdit* text_;
};

void compareCreation(Kolt::InputRegistry::Entry const& entry, ValueMaker const& make, Findings& findings) {
    QWidget window;
    ChosenPools pools;
    pools.use(Kolt::PoolPtr(new Kolt::ValuePool("draft")));
    Kolt::ParameterPtr const parameter(
        new Kolt::VParameter("object.parameter", make(0), Kolt::VParameter::Values::Shared, entry.valueType));
    auto const plain = shortestTime([&] { PlainEditor const editor(&window); });
    auto const ours = shortestTime([&] { delete Kolt::makeEditor(parameter, &window, &pools, entry.creator).widget; });
    compareTimes(ours, plain, creationLimit, "making it", findings);
}

void compareChange(Kolt::InputRegistry::Entry const& entry, ValueMaker const& make, Findings& findings) {
    QWidget window;
    ChosenPools pools;
    auto const pool = Kolt::PoolPtr(new Kolt::ValuePool("draft"));
    pools.use(pool);
    Kolt::ParameterPtr const parameter(
        new Kolt::VParameter("object.parameter", make(0), Kolt::VParameter::Values::Shared, entry.valueType));
    auto const editor = Kolt::makeEditor(parameter, &window, &pools, entry.creator);
    PlainEditor plainEditor(&window);
    int next = 0;
    auto const plain = shortestTime([&] { plainEditor.showText(QString::number(++next)); });
    auto const ours = shortestTime([&] {
        auto const& value = parameter->ownValue();
        value->assign(*make(++next % 3));
        parameter->notifyValueChange(value, pool, std::string(), nullptr, nullptr, nullptr);
    });
    compareTimes(ours, plain, changeLimit, "showing a change", findings);
}

template <typename Compare>
std::function<void(Subject const&, Findings&)> compared(Compare const& compare) {
    return [compare](Subject const& subject, Findings& findings) {
        LoadedPlugin plugin(subject.file, findings);
        plugin.forEachEditor([&](Kolt::InputRegistry::Entry const& entry) {
            auto const make = sampleValues(entry.valueType);
            if (findings.expect(bool(make), "there is no value creator for its type"))
                compare(entry, make, findings);
        });
    };
}

} // namespace

void addSpeedChecks(std::vector<Check>& checks) {
    checks.push_back(
        {10, "speed.creation", "An editor is made about as quickly as one of bare Qt.", compared(compareCreation)});
    checks.push_back(
        {10, "speed.change", "A change is shown about as quickly as by bare Qt.", compared(compareChange)});
}

} // namespace Checker
