#pragma once

#include <plugin/VInputValue.hpp>
#include <qVinputs/basics/NumberControl.hpp>

#include <lattice/CreationPreferences.hpp>
#include <lattice/UndoAction.hpp>
#include <optional>
#include <QHBoxLayout>
#include <QPointer>
#include <QSlider>
#include <QWidget>

namespace Kolt {

/// The step back from one move of an integer input's control: writes the previous value through the input, in the pool
/// of the move. The history owns it; it refers to the input weakly.
class IntegerUndo : public VUndoAction {
public:
    IntegerUndo(Tessera::WeakPtr<VInputValue<int>, ValueNotifier> const& input,
                Tessera::StrongPtr<VContext::Addendum> const& addendum, int previous);
    ~IntegerUndo() override;

    /// False, and nothing written, where the input or its parameter is gone or takes no integer. Records no step.
    bool undo() override;

private:
    Tessera::WeakPtr<VInputValue<int>, ValueNotifier> input_;
    Tessera::StrongPtr<VContext::Addendum> addendum_;
    int previous_;
};

/// Edits an int with a slider, or with a dial under the preference "dial" (which turns round and round under
/// "periodic" as well), and a line edit. Every move of the control records a step that can be taken back; a number
/// that is typed may lie outside the control's range.
///
/// The range comes from the parameter's properties "min" and "max", whole numbers both, which are set where they are
/// missing: 0 and 360 for a dial, 0 and a bound that suits the value for a slider. Two warnings go to the host: where
/// the parameter is gone at the start, and where it has no int in the widget's pool; the input then shows 0. A move or
/// a typed number prints the owner-fault line where the parameter is gone.
class QInteger : public QWidget, public VInputValue<int> {
    Q_OBJECT

public:
    QInteger(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
             PreferencesPtr const& preferences);
    ~QInteger() override;

    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

public slots:
    /// The control moved.
    void valueChanged(int value);
    /// Return was pressed in the line edit.
    void textEnter();

private:
    void makeDial(bool periodic);
    void makeSlider(int defaultMaximum);
    void makeLineEdit();
    /// Sets the missing bounds and takes the range from the properties.
    void setRangeFromProperties(int defaultMaximum);

    /// The slider or the dial; null when it is gone.
    QAbstractSlider* control() const;
    void setRange(NumberBounds<int> const& bounds);
    /// Shows a number in the line edit and by the handle. Writes nothing.
    void showNumber(int value);
    /// Shows a number and, where it is new, records a step and writes it.
    void showAndWrite(int value);

    QPointer<QHBoxLayout> layout_;
    QPointer<QSlider> slider_;
    QPointer<QDial> dial_;
    QPointer<QLeaveLineEdit> lineEdit_;
    bool periodic_ = false;
    // The number shown last. Without a pool it is held nowhere else.
    int shown_ = 0;
    // The number whose step is being recorded.
    std::optional<int> recording_;
};

} // namespace Kolt
