#pragma once

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

/// Drops a text on the left edge of a widget, as another program does.
inline void dropText(QWidget& widget, QString const& text) {
    QMimeData data;
    data.setText(text);
    QPoint const place(2, widget.height() / 2);
    // A drop goes to the widget that accepted what was dragged into it.
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &enter);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &drop);
}
