#pragma once

#include <plugin/VInputValue.hpp>
#include <qVinputs/basics/FloatInterval.hpp>
#include <qVinputs/basics/NumberControl.hpp>

#include <lattice/CreationPreferences.hpp>
#include <QFrame>
#include <QPointer>
#include <QSlider>

namespace Kolt {

class QFloat;

/// A horizontal slider that stands for an interval of real numbers. A click with the left button puts the handle under
/// the pointer. Keys, besides those that move the focus: Right one step up; Left, Home and End one step down; Up and
/// Down make the steps coarser and finer; + and - widen and narrow the interval around the current value; 1, 2, 3 and
/// 4 go to 10, 33, 66 and 90 per cent. All other keys are taken and do nothing.
class MyQSlider : public QSlider {
public:
    /// The name is for whoever reads the code; it is not kept.
    MyQSlider(QFloat* parent, char const* name);

    FloatInterval interval;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

/// A dial that stands for an interval of real numbers. It is turned by dragging, releasing and the wheel: keys and the
/// press of a button do nothing.
class MyQDial : public QDial {
public:
    /// The name is for whoever reads the code; it is not kept.
    MyQDial(QFloat* parent, char const* name);

    FloatInterval interval;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

/// Edits a double with a line edit and a slider, or a dial under the preference "dial" or "periodic" (it turns round
/// and round under the latter). A typed number is read with single precision and may lie outside the interval.
///
/// The parameter's properties: "min" and "max" (double), the interval, set to 0 and 1 where they are missing;
/// "increment" (double), how many positions the control has over the interval, 1e8 without it; "precision" (int, 0 to
/// 1000, what lies outside counts as the nearer bound), the number of decimals shown, 6 without it. Two warnings go to
/// the host: where the parameter is gone at the start, and where it has no double in the widget's pool; the input then
/// shows 0. An edit prints the owner-fault line where the parameter is gone.
class QFloat : public QFrame, public VInputValue<double> {
    Q_OBJECT

public:
    QFloat(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
           PreferencesPtr const& preferences);
    ~QFloat() override;

    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

public slots:
    /// The control moved.
    void sliderValueChanged(int position);
    /// Return was pressed in the line edit.
    void textEnter();

private:
    void makeDial(bool periodic);
    void makeSlider();
    void setUpLineEdit();

    /// The slider or the dial, and its interval; null when it is gone.
    QAbstractSlider* control() const;
    FloatInterval* interval() const;
    void applyProperties(ValueMap const* properties);
    void moveHandle(double value);
    void showText(double value);
    /// Shows a number in the line edit and by the handle. Writes nothing.
    void showNumber(double value);
    void showAndWrite(double value);

    QPointer<MyQSlider> slider_;
    QPointer<MyQDial> dial_;
    QPointer<QLeaveLineEdit> lineEdit_;
    int precision_ = 6;
    double resolution_ = 100000000.0;
    // The number shown last. Without a pool it is held nowhere else.
    double shown_ = 0.0;
};

} // namespace Kolt
