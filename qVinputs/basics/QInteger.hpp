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

/// The undo step of one move of an integer input's control: writes the previous value through the input, in the pool of
/// the move. The history owns it; it refers to the input weakly. User-interface thread.
class IntegerUndo : public VUndoAction {
public:
    /// `addendum` carries the pool of the move; `previous` is the value before it.
    IntegerUndo(Tessera::WeakPtr<VInputValue<int>, ValueNotifier> const& input,
                Tessera::StrongPtr<VContext::Addendum> const& addendum, int previous);
    ~IntegerUndo() override;

    /// Writes the previous value and shows it. False, and nothing written, if the input or its parameter was deleted or
    /// takes no integer. Records no undo step.
    bool undo() override;

private:
    Tessera::WeakPtr<VInputValue<int>, ValueNotifier> input_;
    Tessera::StrongPtr<VContext::Addendum> addendum_;
    int previous_;
};

/// Edits an int with a slider, or with a dial with the preference "dial" (which wraps with "periodic" as well), and a
/// line edit. Every move of the control records an undo step. A number that is typed may lie outside the control's
/// range.
///
/// The range comes from the parameter's properties "min" and "max", both integers. Missing ones are set: 0 and 360 for
/// a dial; 0 and for a slider twice the parameter's own value, at least 100, or 256 if that is no int. The host is
/// warned if the parameter was deleted before the start, and if it has no int in the widget's pool; the editor then
/// shows 0. A move or a typed number prints the owner-fault line if the parameter was deleted. User-interface thread.
class QInteger : public QWidget, public VInputValue<int> {
    Q_OBJECT

public:
    /// Makes an editor of `parameter` on `parent`, which owns it and may be null. The editor refers to the parameter
    /// weakly. It asks `poolSource` for the pool at each use; the source must outlive it, and null means that there is
    /// no pool. `preferences` may be null.
    QInteger(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
             PreferencesPtr const& preferences);
    ~QInteger() override;

    /// Takes a changed range, and shows an int of the editor's pool; one that the pool does not hold yet is taken as a
    /// move. Any other value is ignored. The editor may be deleted meanwhile.
    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

public slots:
    /// The control moved: shows the number and, if it is new, records an undo step and writes it. The editor may be
    /// deleted meanwhile.
    void valueChanged(int value);
    /// Return was pressed in the line edit: moves the control and writes the number; a text that is no integer is
    /// ignored. The editor may be deleted meanwhile.
    void textEnter();

protected:
    /// Shows the tool tip.
    bool event(QEvent* event) override;

private:
    // Parts of the construction.
    void makeDial(bool periodic);
    void makeSlider(int defaultMaximum);
    void makeLineEdit();
    /// Sets the missing bounds and takes the range from the properties.
    void setRangeFromProperties(int defaultMaximum);

    /// The slider or the dial; null if it was deleted.
    QAbstractSlider* control() const;
    /// Sets the control's range and moves it to the number shown. Writes nothing.
    void setRange(NumberBounds<int> const& bounds);
    /// Shows a number in the line edit and by the handle. Writes nothing.
    void showNumber(int value, TypedText typed);
    /// The range of the control, which may have been deleted.
    NumberBounds<int> bounds() const;
    /// The tool tip of the number shown.
    QString numberTip() const;
    /// Marks a number outside the range.
    void showMark();
    /// Shows a number and, if it is new, records an undo step and writes it.
    void showAndWrite(int value, TypedText typed);

    // The controls are children; each pointer is null if its control was deleted or never made.
    QPointer<QHBoxLayout> layout_;
    QPointer<QSlider> slider_;
    QPointer<QDial> dial_;
    QPointer<QLeaveLineEdit> lineEdit_;
    // Whether the dial wraps as soon as its range has a width.
    bool periodic_ = false;
    // The number shown last. Without a pool no other object has it.
    int shown_ = 0;
    // The number whose undo step is being recorded; the listeners of the history may move the control meanwhile.
    std::optional<int> recording_;
    // The number that was typed, while the handle moves to the position nearest to it.
    std::optional<int> typed_;
};

} // namespace Kolt
