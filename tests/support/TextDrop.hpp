#pragma once

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

/// Drops a text on the left edge of a widget, as a drag from another program does.
inline void dropText(QWidget& widget, QString const& text) {
    QMimeData data;
    data.setText(text);
    QPoint const place(2, widget.height() / 2);
    // Qt delivers a drop to the widget that accepted the drag.
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &enter);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &drop);
}
