#include "WindowMouse.hpp"

#include "WalkTime.hpp"

#include <QApplication>
#include <QTest>

QPoint inWindow(QWidget const& widget, QPoint const& place) {
    auto const point = widget.mapTo(widget.window(), place);
    return {qBound(0, point.x(), widget.window()->width() - 1), qBound(0, point.y(), widget.window()->height() - 1)};
}

void activate(QPointer<QWidget> const& window) {
    if (QApplication::activePopupWidget() || window->isActiveWindow())
        return;
    window->activateWindow();
    waitSoon([&window] { return !window || window->isActiveWindow(); });
}

void click(QPointer<QWindow> const& window, Qt::MouseButton button, QPoint const& point) {
    QTest::mousePress(window.data(), button, {}, point);
    auto* const released = window && window->isVisible() ? window.data() : QGuiApplication::focusWindow();
    if (released)
        QTest::mouseRelease(released, button, {}, point);
}
