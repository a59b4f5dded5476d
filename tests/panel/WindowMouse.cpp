#include "WindowMouse.hpp"

#include "support/TaloTest.hpp"

#include <QApplication>
#include <QTest>

namespace {

// In milliseconds.
constexpr int soon = 1000;

} // namespace

QPoint inWindow(QWidget const& widget, QPoint const& place) {
    auto const point = widget.mapTo(widget.window(), place);
    return {qBound(0, point.x(), widget.window()->width() - 1), qBound(0, point.y(), widget.window()->height() - 1)};
}

void activate(QPointer<QWidget> const& window) {
    if (QApplication::activePopupWidget() || window->isActiveWindow())
        return;
    window->activateWindow();
    waitUntil([&window] { return !window || window->isActiveWindow(); }, soon);
}

void click(QPointer<QWindow> const& window, Qt::MouseButton button, QPoint const& point) {
    QTest::mousePress(window.data(), button, {}, point);
    auto* const released = window && window->isVisible() ? window.data() : QGuiApplication::focusWindow();
    if (released)
        QTest::mouseRelease(released, button, {}, point);
}
