#pragma once

#include <lattice/Parameter.hpp>
#include <QDial>
#include <QLayout>
#include <QSignalBlocker>
#include <sorrel/QLeaveLineEdit.hpp>

namespace Kolt {

/// The names of the properties that hold the ends of a number editor's range.
constexpr char MinimumProperty[] = "min";
constexpr char MaximumProperty[] = "max";

/// The ends of a number editor's range. Nothing says that the minimum is below the maximum.
template <typename T>
struct NumberBounds {
    T minimum;
    T maximum;
};

/// The T under a property's name; `fallback` where there are no properties, none of that name, or it is no T.
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

/// Puts the dial of a number editor at the end of a layout and gives it its size and steps. A periodic one wraps: it
/// turns round and round.
inline void addDial(QLayout& layout, QDial& dial, bool periodic) {
    dial.setWrapping(periodic);
    layout.addWidget(&dial);
    dial.setTracking(true);
    dial.setNotchesVisible(true);
    dial.setFixedSize(64, 64);
    dial.setPageStep(15);
    dial.setSingleStep(5);
}

/// Moves a control to a position without its signals. Null: nothing.
inline void moveSilently(QAbstractSlider* control, int position) {
    QSignalBlocker const blocker(control);
    if (control)
        control->setValue(position);
}

/// Shows a number's text, also as the remembered one, with the cursor at its start. Null: nothing.
inline void showNumberText(QLeaveLineEdit* lineEdit, QString const& text) {
    if (!lineEdit)
        return;
    lineEdit->showText(text);
    lineEdit->home(false);
}

} // namespace Kolt
