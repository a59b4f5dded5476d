#include <parameters/input/KeyboardPress.hpp>

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

namespace Talo {

namespace {

void click(QPointer<QWidget> const& widget) {
    QPointF const middle = QRectF(widget->rect()).center();
    for (auto const type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        if (!widget)
            return;
        auto const held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(type, middle, widget->mapToGlobal(middle.toPoint()), Qt::LeftButton, held, Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
    }
}

} // namespace

KeyboardPress::KeyboardPress(QWidget* control)
    : QObject(control),
      control_(control),
      outline_(qobject_cast<QAbstractButton*>(control) ? nullptr : new FocusOutline(control)) {
    control->setFocusPolicy(Qt::StrongFocus);
    control->installEventFilter(this);
}

KeyboardPress::~KeyboardPress() = default;

bool KeyboardPress::eventFilter(QObject* watched, QEvent* event) {
    if (outline_ && event->type() == QEvent::FocusIn)
        outline_->show();
    else if (outline_ && event->type() == QEvent::FocusOut)
        outline_->hide();
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    auto const* const key = static_cast<QKeyEvent*>(event);
    bool const presses = key->key() == Qt::Key_Space || key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (!presses || key->isAutoRepeat())
        return QObject::eventFilter(watched, event);
    click(control_);
    return true;
}

} // namespace Talo
