#include <parameters/input/WheelGuard.hpp>
#include <QApplication>
#include <QEvent>
#include <QPointer>

namespace Talo {

namespace {

/// The guarded editor that a widget is or lies in; null for none.
QWidget* guardedEditor(QWidget* widget) {
    for (; widget; widget = widget->isWindow() ? nullptr : widget->parentWidget())
        if (widget->findChild<WheelGuard*>(QString(), Qt::FindDirectChildrenOnly))
            return widget;
    return nullptr;
}

void keepFromFocus(QWidget& widget) {
    // Qt hands the focus over before anybody sees the wheel.
    if (widget.focusPolicy() == Qt::WheelFocus)
        widget.setFocusPolicy(Qt::StrongFocus);
}

/// Sees the events of the whole application: a filter on each of an editor's widgets would take more memory than most
/// of them.
class Filter : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        auto const type = event->type();
        if ((type != QEvent::Wheel && type != QEvent::Polish) || !watched->isWidgetType())
            return false;
        auto* const widget = static_cast<QWidget*>(watched);
        auto const* const editor = guardedEditor(widget);
        if (!editor)
            return false;
        if (type == QEvent::Polish) {
            keepFromFocus(*widget);
            return false;
        }
        auto const* const focus = QApplication::focusWidget();
        if (focus && (focus == editor || editor->isAncestorOf(focus)))
            return false;
        event->ignore();
        return true;
    }
};

void installFilter() {
    static QPointer<Filter> filter;
    if (filter)
        return;
    // The application owns it.
    filter = new Filter(qApp);
    qApp->installEventFilter(filter);
}

} // namespace

WheelGuard::WheelGuard(QWidget* editor) : QObject(editor) {
    installFilter();
    keepFromFocus(*editor);
    auto const widgets = editor->findChildren<QWidget*>();
    for (auto* const widget : widgets)
        if (guardedEditor(widget) == editor)
            keepFromFocus(*widget);
}

WheelGuard::~WheelGuard() = default;

} // namespace Talo
