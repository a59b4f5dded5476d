#pragma once

#include <lattice/Parameter.hpp>
#include <QDial>
#include <QLayout>
#include <QSignalBlocker>
#include <sorrel/QLeaveLineEdit.hpp>

namespace Kolt {

// What the editors of integers and of floating-point numbers share. All of it is for the user-interface thread.

/// The names of the properties that hold the ends of a number editor's range.
constexpr char MinimumProperty[] = "min";
constexpr char MaximumProperty[] = "max";

/// The ends of a number editor's range, in the unit of its parameter. The minimum need not be below the maximum: hosts
/// may set any properties.
template <typename T>
struct NumberBounds {
    T minimum;
    T maximum;
};

/// The T under a property's name; `fallback` if `properties` is null, none has the name, or it is no T. An int is no
/// double, and a double no int.
template <typename T>
T propertyOr(ValueMap const* properties, char const* name, T const& fallback) {
    return properties ? valueOr(properties->getValue(name), fallback) : fallback;
}

/// The bounds that the properties "min" and "max" hold. Each one falls back on its own.
template <typename T>
NumberBounds<T> boundsOr(ValueMap const* properties, NumberBounds<T> const& fallback) {
    return {propertyOr(properties, MinimumProperty, fallback.minimum),
            propertyOr(properties, MaximumProperty, fallback.maximum)};
}

/// Puts the dial of a number editor at the end of a layout, whose widget owns it, and gives it its size of 64 by 64
/// pixels and its steps. A periodic dial wraps: it turns from the maximum to the minimum.
inline void addDial(QLayout& layout, QDial& dial, bool periodic) {
    dial.setWrapping(periodic);
    layout.addWidget(&dial);
    dial.setTracking(true);
    dial.setNotchesVisible(true);
    dial.setFixedSize(64, 64);
    dial.setPageStep(15);
    dial.setSingleStep(5);
}

/// Moves a control to a position, or the nearest one in its range, without its signals. Null: nothing.
inline void moveSilently(QAbstractSlider* control, int position) {
    QSignalBlocker const blocker(control);
    if (control)
        control->setValue(position);
}

/// What becomes of a text that is being typed when a number is shown.
enum class TypedText {
    Keep,   ///< it stays until it is entered or left: the number came from elsewhere
    Replace ///< it gives way: the user entered it or moved the control
};

/// Shows the text of a number and remembers it as the line edit's last one; the cursor goes to the start and nothing is
/// selected. Null: nothing.
inline void showNumberText(QLeaveLineEdit* lineEdit, QString const& text, TypedText typed) {
    if (!lineEdit)
        return;
    if (typed == TypedText::Replace)
        lineEdit->showText(text);
    else if (!lineEdit->updateText(text))
        return;
    lineEdit->home(false);
}

} // namespace Kolt
