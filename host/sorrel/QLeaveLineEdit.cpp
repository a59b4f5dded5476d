#include <sorrel/QLeaveLineEdit.hpp>

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPointer>

namespace Kolt {

QLeaveLineEdit::QLeaveLineEdit(QWidget* parent) : QLineEdit(parent) {}

QLeaveLineEdit::~QLeaveLineEdit() = default;

void QLeaveLineEdit::showText(QString const& text) {
    remembered_ = text;
    setText(text);
}

void QLeaveLineEdit::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    disconnect(focusChanged_);
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason) {
        leave();
        return;
    }
    // The focus may come back to another widget, which causes no event for this one.
    focusChanged_ = connect(qApp, &QApplication::focusChanged, this, [this](QWidget const*, QWidget const* now) {
        if (!now || now->window()->windowType() == Qt::Popup)
            return;
        disconnect(focusChanged_);
        if (now != this)
            leave();
    });
}

void QLeaveLineEdit::leave() {
    if (text() == remembered_)
        return;
    QPointer<QLeaveLineEdit> const self(this);
    if (hasAcceptableInput())
        emit returnPressed();
    if (self && text() != remembered_)
        setText(remembered_);
}

void QLeaveLineEdit::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && text() != remembered_)
        setText(remembered_);
    else
        QLineEdit::keyPressEvent(event);
}

} // namespace Kolt
