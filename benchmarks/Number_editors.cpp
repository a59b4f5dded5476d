#include "BenchmarkCase.hpp"

#include <cmath>
#include <deque>
#include <QAbstractSlider>
#include <QApplication>
#include <QDial>
#include <QDoubleValidator>
#include <QFrame>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLineEdit>
#include <QPointer>
#include <QSignalBlocker>
#include <QSlider>
#include <QWheelEvent>

namespace {

constexpr int LargestInteger = 1000;
constexpr int RealPositions = 100000000;

/// A control as the editors have it; what kind follows from the preferences.
QAbstractSlider* makeControl(QWidget* parent, std::vector<std::string> const& preferences) {
    if (preferences.empty())
        return new QSlider(Qt::Horizontal, parent);
    auto* const dial = new QDial(parent);
    dial->setWrapping(preferences.size() > 1);
    dial->setTracking(true);
    dial->setNotchesVisible(true);
    dial->setFixedSize(64, 64);
    dial->setPageStep(15);
    dial->setSingleStep(5);
    return dial;
}

/// A step of the program that can be undone.
struct SetInteger {
    QPointer<QObject> editor;
    int previous = 0;
    int value = 0;
    QString text;
};

/// The program's steps, as many as the host of the plug-in keeps.
void record(SetInteger const& step) {
    static std::deque<SetInteger> steps;
    steps.push_back(step);
    if (steps.size() > 1000)
        steps.pop_front();
}

class BareInteger : public QWidget, public BareEditor {
public:
    BareInteger(QWidget* parent, std::vector<std::string> const& preferences)
        : QWidget(parent), lineEdit_(new QLineEdit(this)), control_(makeControl(this, preferences)) {
        auto* const layout = new QHBoxLayout;
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(control_);
        control_->setRange(0, LargestInteger);
        lineEdit_->setValidator(new QIntValidator(lineEdit_));
        lineEdit_->setAlignment(Qt::AlignRight);
        lineEdit_->setMaximumWidth(100);
        layout->addWidget(lineEdit_);
        setLayout(layout);
        change(0);
        connect(control_, &QAbstractSlider::valueChanged, this, [this](int value) {
            if (value == value_)
                return;
            record({this, value_, value, QLatin1String("Set int value to ") + QString::number(value_)});
            value_ = value;
            showText();
            notify(lineEdit_->text());
        });
        connect(lineEdit_, &QLineEdit::returnPressed, this, [this] { control_->setValue(lineEdit_->text().toInt()); });
    }

    QWidget* widget() override { return this; }
    void change(int n) override {
        value_ = n == 0 ? 250 : 750;
        showText();
        QSignalBlocker const blocker(control_);
        control_->setValue(value_);
    }

private:
    void showText() {
        lineEdit_->setText(QString::number(value_));
        lineEdit_->home(false);
    }

    // Made first, so that it has the focus, as in the editor: Qt tells the input method of its changes then.
    QLineEdit* const lineEdit_;
    QAbstractSlider* const control_;
    int value_ = 0;
};

class BareReal : public QFrame, public BareEditor {
public:
    BareReal(QWidget* parent, std::vector<std::string> const& preferences)
        : QFrame(parent), lineEdit_(new QLineEdit(this)), control_(makeControl(this, preferences)) {
        setContextMenuPolicy(Qt::ActionsContextMenu);
        auto* const layout = new QHBoxLayout;
        setLayout(layout);
        layout->addWidget(lineEdit_);
        control_->setFocusPolicy(Qt::WheelFocus);
        layout->addWidget(control_);
        control_->setRange(0, RealPositions);
        lineEdit_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        auto* const validator = new QDoubleValidator(lineEdit_);
        validator->setLocale(QLocale(QLocale::C));
        lineEdit_->setValidator(validator);
        layout->setAlignment(lineEdit_, Qt::AlignLeft | Qt::AlignVCenter);
        change(0);
        connect(control_, &QAbstractSlider::valueChanged, this, [this](int position) {
            value_ = static_cast<double>(position) / RealPositions;
            showText();
            notify(lineEdit_->text());
        });
        connect(lineEdit_, &QLineEdit::returnPressed, this, [this] {
            control_->setValue(static_cast<int>(std::lround(lineEdit_->text().toDouble() * RealPositions)));
        });
    }

    QWidget* widget() override { return this; }
    void change(int n) override {
        value_ = n == 0 ? 0.25 : 0.75;
        showText();
        QSignalBlocker const blocker(control_);
        control_->setValue(static_cast<int>(std::lround(value_ * RealPositions)));
    }

private:
    void showText() {
        lineEdit_->setText(QString::number(value_, 'f', 6));
        lineEdit_->home(false);
    }

    QLineEdit* const lineEdit_;
    QAbstractSlider* const control_;
    double value_ = 0;
};

/// Turns the wheel over the control by one notch, to and fro.
void turnWheel(QWidget& editor, int n) {
    auto* const control = editor.findChild<QAbstractSlider*>();
    QPointF const place = control->rect().center();
    QWheelEvent event(place, control->mapToGlobal(place.toPoint()), QPoint(), QPoint(0, n == 0 ? 120 : -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(control, &event);
}

/// What the mouse does to a control while it drags the handle over a thousand positions.
void drag(QWidget& editor) {
    auto* const control = editor.findChild<QAbstractSlider*>();
    int const step = control->maximum() / 1000;
    control->setSliderDown(true);
    for (int n = 0; n < 1000; ++n)
        control->setSliderPosition(n * step);
    control->setSliderDown(false);
}

template <typename Bare, typename T>
void addEditor(std::vector<BenchmarkCase>& cases, std::string const& creator,
               std::vector<std::string> const& preferences, T const& first, T const& second, T const& maximum) {
    auto made = benchmarkCase(creator, preferences, first, second);
    // A network gives its numbers their bounds.
    made.makeParameter = [make = made.makeParameter, maximum] {
        auto const parameter = make();
        parameter->setProperty("min", Kolt::makeValue(T()), nullptr, nullptr, nullptr);
        parameter->setProperty("max", Kolt::makeValue(maximum), nullptr, nullptr, nullptr);
        return parameter;
    };
    made.makeBare = [preferences](QWidget* parent) { return new Bare(parent, preferences); };
    made.edit = turnWheel;
    made.drag = drag;
    cases.push_back(made);
}

} // namespace

void addNumberBenchmarks(std::vector<BenchmarkCase>& cases) {
    addEditor<BareInteger>(cases, "int", {}, 250, 750, LargestInteger);
    addEditor<BareInteger>(cases, "intDial", {"dial"}, 250, 750, LargestInteger);
    addEditor<BareInteger>(cases, "intDialPeriodic", {"dial", "periodic"}, 250, 750, LargestInteger);
    addEditor<BareReal>(cases, "double", {}, 0.25, 0.75, 1.0);
    addEditor<BareReal>(cases, "FltDial", {"dial"}, 0.25, 0.75, 1.0);
    addEditor<BareReal>(cases, "Periodic FltDial", {"dial", "periodic"}, 0.25, 0.75, 1.0);
}
