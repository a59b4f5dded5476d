#include <parameters/input/PendingEdit.hpp>

#include <parameters/input/GestureTarget.hpp>
#include <parameters/input/InputFilter.hpp>
#include <QApplication>
#include <QFocusEvent>
#include <QPointer>

namespace Talo {

void commitPendingEdit(QWidget& window) {
    // A field commits on focus-out; losing only the window's activation does not trigger that, so send it.
    QPointer<QWidget> const focus = QApplication::focusWidget() ? QApplication::focusWidget() : window.focusWidget();
    if (GestureTarget::around(focus)) {
        QFocusEvent leave(QEvent::FocusOut, Qt::OtherFocusReason);
        QApplication::sendEvent(focus, &leave);
    }
    if (focus && focus->hasFocus()) {
        QFocusEvent come(QEvent::FocusIn, Qt::OtherFocusReason);
        QApplication::sendEvent(focus, &come);
    }
    InputFilter::shared()->gestures().end();
}

void commitPendingEdits() {
    QList<QPointer<QWidget>> windows;
    auto const all = QApplication::topLevelWidgets();
    for (auto* const window : all)
        if (GestureTarget::around(window->focusWidget()))
            windows << window;
    for (auto const& window : qAsConst(windows))
        if (window)
            commitPendingEdit(*window);
}

} // namespace Talo
