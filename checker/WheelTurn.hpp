#pragma once

#include <QApplication>
#include <QWheelEvent>
#include <QWidget>

namespace Checker {

/// Turns the mouse wheel over the middle of a widget by a number of notches; positive ones turn away from the user.
inline void turnWheel(QWidget& widget, int notches) {
    QPointF const place = widget.rect().center();
    QWheelEvent event(place, widget.mapToGlobal(place.toPoint()), QPoint(), QPoint(0, 120 * notches), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

} // namespace Checker
