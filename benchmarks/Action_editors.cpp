#include "BenchmarkCase.hpp"

#include <algorithm>
#include <bramble/Action.hpp>
#include <bramble/Color.hpp>
#include <QColorDialog>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

namespace {

// A host changes the properties of an action, not its value.
char const* const toolTips[] = {"Computes the picture", "Stops the computation"};

class BareAction : public QPushButton, public BareEditor {
public:
    explicit BareAction(QWidget* parent) : QPushButton(parent) {
        setText(QLatin1String("parameter"));
        connect(this, &QPushButton::clicked, this, [this] { ++fired_; });
    }

    QWidget* widget() override { return this; }
    void change(int n) override { setToolTip(QString::fromUtf8(toolTips[n])); }

private:
    int fired_ = 0;
};

class BareColour : public QLabel, public BareEditor {
public:
    explicit BareColour(QWidget* parent) : QLabel(parent), dialog_(new QColorDialog(this)) {
        dialog_->setOptions(QColorDialog::NoButtons | QColorDialog::ShowAlphaChannel);
        connect(dialog_, &QColorDialog::currentColorChanged, this, [this](QColor const& colour) {
            value_ = colour;
            showValue();
        });
        setAutoFillBackground(true);
        setFrameStyle(QFrame::Box);
        setLineWidth(1);
        showValue();
    }

    QWidget* widget() override { return this; }
    void change(int n) override {
        value_ = n == 0 ? QColor(Qt::red) : QColor(Qt::yellow);
        showValue();
    }

protected:
    void mousePressEvent(QMouseEvent*) override {
        setText(QLatin1String(" picking"));
        {
            QSignalBlocker const blocker(dialog_);
            dialog_->setCurrentColor(value_);
        }
        dialog_->show();
        dialog_->raise();
        dialog_->activateWindow();
    }

private:
    void showValue() {
        bool const light = std::min({value_.redF(), value_.greenF(), value_.blueF()}) >= 0.5;
        QColor text(light ? Qt::black : Qt::white);
        text.setAlphaF(value_.alphaF());
        QPalette shown(palette());
        shown.setBrush(QPalette::All, QPalette::Window, QBrush(value_, Qt::SolidPattern));
        shown.setColor(QPalette::All, QPalette::WindowText, text);
        setPalette(shown);
        setText(QLatin1Char(' ') + QString::number(value_.alphaF(), 'f', 2) + QLatin1Char(' '));
    }

    QColorDialog* const dialog_;
    QColor value_ = Qt::red;
};

/// Presses the swatch and turns the green channel by one step in the dialog.
void pickAnotherGreen(QWidget& swatch, int n) {
    QTest::mousePress(&swatch, Qt::LeftButton);
    for (auto* const label : swatch.findChild<QColorDialog*>()->findChildren<QLabel*>()) {
        if (label->text() == QLatin1String("&Green:"))
            QTest::keyClick(label->buddy(), n == 0 ? Qt::Key_Up : Qt::Key_Down);
    }
}

} // namespace

void addActionBenchmarks(std::vector<BenchmarkCase>& cases) {
    auto const makeAction = [] { return Tessera::StrongPtr<Kolt::VAction>(new Kolt::VAction); };
    auto action = benchmarkCase("action", {}, makeAction(), makeAction());
    action.change = [](Kolt::VParameter& parameter, int n) {
        parameter.setProperty("tooltip", Kolt::makeValue(std::string(toolTips[n])), nullptr, nullptr, nullptr);
    };
    action.makeBare = [](QWidget* parent) { return new BareAction(parent); };
    action.edit = [](QWidget& editor, int) { QTest::mouseClick(&editor, Qt::LeftButton); };
    cases.push_back(action);

    Ferro::rgba_float_t const red{1.0F, 0.0F, 0.0F, 1.0F};
    Ferro::rgba_float_t const yellow{1.0F, 1.0F, 0.0F, 1.0F};
    auto colour = benchmarkCase("ColorDisplay", {}, red, yellow);
    colour.makeBare = [](QWidget* parent) { return new BareColour(parent); };
    colour.edit = pickAnotherGreen;
    cases.push_back(colour);
}
