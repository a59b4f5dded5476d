#pragma once

#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <QWindow>

// The mouse of somebody who clicks anywhere in a window.

/// A place of the widget as a place of its window, moved into the window if it is outside.
QPoint inWindow(QWidget const& widget, QPoint const& place);

/// Activates the window, as a window manager does on a press. A popup is in front already. The window may be destroyed
/// in the process.
void activate(QPointer<QWidget> const& window);

/// Presses and releases a button. The press may close the window.
void click(QPointer<QWindow> const& window, Qt::MouseButton button, QPoint const& point);
