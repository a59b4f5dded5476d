#include <panel/WheelGuard.hpp>
#include <QApplication>
#include <QChildEvent>

namespace Panel {

WheelGuard::WheelGuard(QWidget* editor) : QObject(editor), editor_(editor) {
    guard(editor);
}

WheelGuard::~WheelGuard() = default;

void WheelGuard::guard(QWidget* widget) {
    if (widget != editor_ && widget->isWindow())
        return;
    // Qt hands the focus over before the filter sees the wheel.
    if (widget->focusPolicy() == Qt::WheelFocus)
        widget->setFocusPolicy(Qt::StrongFocus);
    widget->installEventFilter(this);
    auto const children = widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (auto* const child : children)
        guard(child);
}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Wheel) {
        auto* const focus = QApplication::focusWidget();
        if (focus && (focus == editor_ || editor_->isAncestorOf(focus)))
            return false;
        event->ignore();
        return true;
    }
    // A child is not complete before it was polished.
    if (event->type() == QEvent::ChildPolished) {
        auto* const child = static_cast<QChildEvent*>(event)->child();
        if (child->isWidgetType())
            guard(static_cast<QWidget*>(child));
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Panel
