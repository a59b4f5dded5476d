#include <panel/window/ActivationRepair.hpp>

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWindow>

namespace Panel {

namespace {

// How often it is checked whether the popup was closed, in milliseconds.
constexpr int popupInterval = 50;

} // namespace

ActivationRepair::ActivationRepair(QWidget& window) : QObject(&window), window_(window) {
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &ActivationRepair::repair, Qt::QueuedConnection);
    window.installEventFilter(this);
}

ActivationRepair::~ActivationRepair() = default;

bool ActivationRepair::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ActivationChange && !window_.isActiveWindow())
        QMetaObject::invokeMethod(this, &ActivationRepair::repair, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void ActivationRepair::repair() {
    auto const* const handle = window_.windowHandle();
    if (!handle || QGuiApplication::focusWindow() != handle || QApplication::activeWindow())
        return;
    if (QApplication::activePopupWidget())
        QTimer::singleShot(popupInterval, this, &ActivationRepair::repair);
    else
        QApplication::setActiveWindow(&window_);
}

} // namespace Panel
