#pragma once

#include <lattice/Value.hpp>
#include <QHelpEvent>
#include <qVinputs/basics/NumberControl.hpp>

namespace Kolt {

// The tool tip of a number editor is made when it is asked for, because a number changes far more often than it is
// asked about. All of it is for the user-interface thread.

/// What the tool tip says of the number.
struct NumberFacts {
    QString value;          ///< the number, with all its digits
    QString minimum;        ///< the lower end of the range
    QString maximum;        ///< the upper end of the range; empty if there is no range
    bool isOutside = false; ///< whether the number lies outside the range
};

/// Whether a number lies outside a range. Bounds in the wrong order are no range.
template <typename T>
bool isOutside(T const& value, NumberBounds<T> const& bounds) {
    return bounds.minimum <= bounds.maximum && !(bounds.minimum <= value && value <= bounds.maximum);
}

/// The facts of a number. Bounds in the wrong order are no range.
template <typename T>
NumberFacts factsOf(T const& value, NumberBounds<T> const& bounds) {
    NumberFacts facts;
    facts.value = QString::fromStdString(VValueTrait<T>::Text(value));
    if (!(bounds.minimum <= bounds.maximum))
        return facts;
    facts.minimum = QString::fromStdString(VValueTrait<T>::Text(bounds.minimum));
    facts.maximum = QString::fromStdString(VValueTrait<T>::Text(bounds.maximum));
    facts.isOutside = isOutside(value, bounds);
    return facts;
}

/// The keys of a control that has those of every slider.
QString sliderKeys();
/// The keys of the slider of floating-point numbers.
QString floatSliderKeys();

/// The tool tip of a number editor: the facts, and the keys of the line edit and of the control, which has none if
/// `controlKeys` is empty.
QString numberToolTip(NumberFacts const& facts, QString const& controlKeys);

/// Shows an editor's tool tip where one is asked for, unless the host gave the editor another one. False if it did.
bool showNumberToolTip(QWidget& editor, QHelpEvent const& event, QString const& text);

/// Marks a line edit whose number lies outside its range; `toolTip` gives the words for the mark. Null: nothing.
template <typename ToolTip>
void markNumber(QLeaveLineEdit* lineEdit, bool isOutside, ToolTip toolTip) {
    if (!lineEdit || (!isOutside && !lineEdit->isMarked()))
        return;
    lineEdit->setMarked(isOutside);
    lineEdit->setToolTip(isOutside ? toolTip() : QString());
}

} // namespace Kolt
