#pragma once

#include <plugin/VInputValue.hpp>
#include <qVinputs/basics/FloatInterval.hpp>
#include <qVinputs/basics/NumberControl.hpp>

#include <lattice/CreationPreferences.hpp>
#include <QFrame>
#include <QPointer>
#include <QSlider>
#include <sorrel/AccessibleNumber.hpp>

namespace Kolt {

class QFloat;

/// What the slider and the dial of a floating-point number have in common.
class IntervalControl : public AccessibleNumber {
public:
    FloatInterval interval;
    /// The number that the editor shows; it may lie between two positions and outside the interval.
    double number = 0.0;

    State numberState() const override;
    int positionOf(double value) const override { return interval.positionOf(value); }
};

/// A horizontal slider that represents an interval of floating-point numbers. A press of the left button puts the
/// handle under the pointer, and the handle stays there until the release. The wheel moves it by a hundredth of the
/// positions, with Ctrl or Shift by a tenth, and by one at least. Keys, besides those that move the focus: Right one
/// step up; Left, Home and End one step down; Up and Down make the steps coarser and finer; + and - widen and narrow
/// the interval around the current value; 1, 2, 3 and 4 move to 10, 33, 66 and 90 per cent. All other keys are accepted
/// and do nothing.
class MyQSlider : public QSlider, public IntervalControl {
public:
    /// `parent` owns the control. The name is a note for readers of the code and is not kept.
    MyQSlider(QFloat* parent, char const* name);

    /// Takes the range, and the steps of the wheel, from the interval.
    void takeRange();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// The position under a pointer. REQUIRES: a width.
    int positionAt(QMouseEvent const& event) const;
    /// Takes the range from the interval, whose steps were changed, and moves to the position of `current`, a value.
    void rescale(double current);
};

/// A dial that represents an interval of floating-point numbers. It is turned by dragging, releasing and the wheel:
/// keys and the press of a button do nothing.
class MyQDial : public QDial, public IntervalControl {
public:
    /// `parent` owns the control. The name is a note for readers of the code and is not kept.
    MyQDial(QFloat* parent, char const* name);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

/// Edits a double with a line edit and a slider, or a dial with the preference "dial" or "periodic" (the latter lets it
/// wrap). A typed number is read with single precision and may lie outside the interval.
///
/// The parameter's properties: "min" and "max" (double), the interval, set to 0 and 1 if they are missing;
/// "increment" (double), how many positions the control has over the interval, 1e8 without it; "precision" (int, 0 to
/// 1000, anything else counts as the nearer bound), the number of decimals shown, 6 without it. The host is warned if
/// the parameter was deleted before the start, and if it has no double in the widget's pool; the editor then shows 0.
/// An edit prints the owner-fault line if the parameter was deleted. User-interface thread.
class QFloat : public QFrame, public VInputValue<double> {
    Q_OBJECT

public:
    /// Makes an editor of `parameter` on `parent`, which owns it and may be null. The editor refers to the parameter
    /// weakly. It asks `poolSource` for the pool at each use; the source must outlive it, and null means that there is
    /// no pool. `preferences` may be null.
    QFloat(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
           PreferencesPtr const& preferences);
    ~QFloat() override;

    /// Takes changed properties, and shows a double of the editor's pool; one that the pool does not hold yet is
    /// written once. Any other value is ignored. The editor may be deleted meanwhile.
    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

public slots:
    /// The control moved: writes the value at its position. The editor may be deleted meanwhile.
    void sliderValueChanged(int position);
    /// Return was pressed in the line edit: writes the number; a text that is no number is ignored. The editor may be
    /// deleted meanwhile.
    void textEnter();

protected:
    /// Shows the tool tip.
    bool event(QEvent* event) override;

private:
    // Parts of the construction.
    void makeDial(bool periodic);
    void makeSlider();
    void setUpLineEdit();

    /// The slider or the dial, and its interval; null if it was deleted.
    QAbstractSlider* control() const;
    IntervalControl* intervalControl() const;
    FloatInterval* interval() const;
    /// Takes interval, resolution and precision from properties. What is missing stays as it is; null: everything.
    void applyProperties(ValueMap const* properties);
    /// Moves the control to a number. Writes nothing.
    void moveHandle(double value);
    /// The tool tip of the number shown.
    QString numberTip() const;
    /// Shows a number in the line edit, with a mark outside the range, and to screen readers. Writes nothing.
    void showText(double value, TypedText typed);
    /// Shows a number in the line edit and by the handle. Writes nothing.
    void showNumber(double value);
    /// Shows a number and writes it. The editor may be deleted meanwhile.
    void showAndWrite(double value, TypedText typed);

    // The controls are children; each pointer is null if its control was deleted or never made.
    QPointer<MyQSlider> slider_;
    QPointer<MyQDial> dial_;
    QPointer<QLeaveLineEdit> lineEdit_;
    // The number of decimals.
    int precision_ = 6;
    // The parameter's own range; keys widen and narrow that of the control.
    NumberBounds<double> bounds_{0.0, 1.0};
    // How many positions the control has.
    double resolution_ = 100000000.0;
    // The number shown last. Without a pool no other object has it.
    double shown_ = 0.0;
};

} // namespace Kolt
