#include <parameters/input/WheelGuard.hpp>

#include <parameters/input/InputFilter.hpp>
#include <QApplication>
#include <QEvent>
#include <QSet>

namespace Talo {

namespace {

void keepFromFocus(QWidget& widget) {
    // Qt sets the focus before any filter sees the wheel.
    if (widget.focusPolicy() == Qt::WheelFocus)
        widget.setFocusPolicy(Qt::StrongFocus);
}

/// All editors that are guarded now: every widget that is made looks for one around it.
QSet<QWidget const*>& guardedEditors() {
    static QSet<QWidget const*> editors;
    return editors;
}

} // namespace

WheelGuard::WheelGuard(QWidget* editor) : QObject(editor), editor_(editor), filter_(InputFilter::shared()) {
    guardedEditors().insert(editor);
    keepFromFocus(*editor);
    auto const widgets = editor->findChildren<QWidget*>();
    for (auto* const widget : widgets)
        if (editorAround(widget) == editor)
            keepFromFocus(*widget);
}

WheelGuard::~WheelGuard() {
    guardedEditors().remove(editor_);
}

QWidget* WheelGuard::editorAround(QWidget* widget) {
    for (; widget; widget = widget->isWindow() ? nullptr : widget->parentWidget())
        if (guardedEditors().contains(widget))
            return widget;
    return nullptr;
}

bool WheelGuard::filter(QWidget& widget, QEvent& event) {
    if (event.type() != QEvent::Wheel && event.type() != QEvent::Polish)
        return false;
    auto const* const editor = editorAround(&widget);
    if (!editor)
        return false;
    if (event.type() == QEvent::Polish) {
        keepFromFocus(widget);
        return false;
    }
    auto const* const focus = QApplication::focusWidget();
    if (focus && (focus == editor || editor->isAncestorOf(focus)))
        return false;
    event.ignore();
    return true;
}

} // namespace Talo
