#include <algorithm>
#include <checker/Check.hpp>
#include <checker/ChosenPools.hpp>
#include <checker/LoadedPlugin.hpp>
#include <checker/SampleValues.hpp>
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

constexpr int rounds = 9;

/// In nanoseconds, the median of several rounds.
template <typename Function>
double medianTime(Function const& function) {
    std::vector<qint64> times;
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer time;
        time.start();
        function();
        times.push_back(time.nsecsElapsed());
    }
    std::nth_element(times.begin(), times.begin() + rounds / 2, times.end());
    return static_cast<double>(times[rounds / 2]);
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
    auto const plain = medianTime([&] { PlainEditor const editor(&window); });
    auto const ours = medianTime([&] { delete Kolt::makeEditor(parameter, &window, &pools, entry.creator).widget; });
    findings.expect(ours < creationLimit * plain, "making it takes " + std::to_string(static_cast<long>(ours / plain)) +
                                                      " times as long as the plainest editor, more than " +
                                                      std::to_string(static_cast<long>(creationLimit)));
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
    auto const plain = medianTime([&] { plainEditor.showText(QString::number(++next)); });
    auto const ours = medianTime([&] {
        auto const& value = parameter->ownValue();
        value->assign(*make(++next % 3));
        parameter->notifyValueChange(value, pool, std::string(), nullptr, nullptr, nullptr);
    });
    findings.expect(ours < changeLimit * plain, "showing a change takes " +
                                                    std::to_string(static_cast<long>(ours / plain)) +
                                                    " times as long as in the plainest editor, more than " +
                                                    std::to_string(static_cast<long>(changeLimit)));
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
