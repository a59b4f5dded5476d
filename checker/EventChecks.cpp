#include <checker/Check.hpp>
#include <checker/ChosenPools.hpp>
#include <checker/DialogCloser.hpp>
#include <checker/Gesture.hpp>
#include <checker/LoadedPlugin.hpp>
#include <checker/SampleValues.hpp>
#include <QApplication>
#include <QTest>
#include <random>
#include <sorrel/InputFrontEnd.hpp>

namespace Checker {

namespace {

/// Does to an editor, and to its parameter, what comes of a generator of random numbers. The same seed does the same.
class RandomEvents {
public:
    RandomEvents(Kolt::InputRegistry::Entry const& entry, unsigned seed)
        : random_(seed),
          make_(sampleValues(entry.valueType)),
          parameter_(
              new Kolt::VParameter("object.parameter", make_(0), Kolt::VParameter::Values::PerPool, entry.valueType)),
          pools_{Kolt::PoolPtr(new Kolt::ValuePool("draft")), Kolt::PoolPtr(new Kolt::ValuePool("final"))} {
        source_.use(pools_[0]);
        editor_ = Kolt::makeEditor(parameter_, &window_, &source_, entry.creator);
        window_.resize(300, 200);
        window_.show();
    }

    void step() {
        if (!editor_.widget)
            return;
        DialogCloser const closer;
        auto const widgets = workable(*editor_.widget);
        auto* const widget = widgets.at(number(static_cast<int>(widgets.size())));
        switch (number(6)) {
        case 0:
            QTest::keyClick(widget, keys_[static_cast<std::size_t>(number(static_cast<int>(keys_.size())))]);
            break;
        case 1:
            QTest::keyClicks(widget, QString(QChar('!' + number(90))));
            break;
        case 2:
            QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier,
                              {number(qMax(1, widget->width())), number(qMax(1, widget->height()))});
            break;
        case 3:
            changeElsewhere();
            break;
        case 4:
            source_.use(pools_[static_cast<std::size_t>(number(2))]);
            Kolt::showPoolValue(editor_, parameter_, &source_);
            break;
        default:
            window_.resize(50 + number(600), 20 + number(400));
            break;
        }
        QApplication::processEvents();
    }

    /// Whether the value is still one of its type.
    bool isSound() const { return parameter_->effectiveValue(pools_[0])->valueType() == make_(0)->valueType(); }

private:
    int number(int below) { return std::uniform_int_distribution<int>(0, below - 1)(random_); }
    void changeElsewhere() {
        auto const pool = pools_[static_cast<std::size_t>(number(2))];
        auto const value = parameter_->getLocalValue(pool, std::string(), true);
        value->assign(*make_(number(3)));
        parameter_->notifyValueChange(value, pool, std::string(), nullptr, nullptr, nullptr);
    }

    std::vector<Qt::Key> const keys_ = {Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left,   Qt::Key_Right,
                                        Qt::Key_Space, Qt::Key_Return, Qt::Key_Tab,    Qt::Key_Escape,
                                        Qt::Key_Home,  Qt::Key_End,    Qt::Key_PageUp, Qt::Key_Delete};
    std::mt19937 random_;
    ValueMaker const make_;
    QWidget window_;
    Kolt::ParameterPtr const parameter_;
    std::vector<Kolt::PoolPtr> const pools_;
    ChosenPools source_;
    Kolt::Editor editor_;
};

void survivesRandomEvents(Subject const& subject, Findings& findings) {
    LoadedPlugin plugin(subject.file, findings);
    plugin.forEachEditor([&](Kolt::InputRegistry::Entry const& entry) {
        if (!findings.expect(bool(sampleValues(entry.valueType)), "there is no value creator for its type"))
            return;
        RandomEvents events(entry, subject.seed);
        for (int step = 0; step < subject.events; ++step)
            events.step();
        findings.expect(events.isSound(), "the value is of another type after random events");
    });
}

} // namespace

void addEventChecks(std::vector<Check>& checks) {
    checks.push_back({9, "events", "Random keys, clicks, changes and pools do no harm.", survivesRandomEvents});
}

} // namespace Checker
