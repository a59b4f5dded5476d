#include <panel/KeyboardPress.hpp>
#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace Panel {

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
      frame_(qobject_cast<QAbstractButton*>(control) ? nullptr : new QFocusFrame(control)) {
    control->setFocusPolicy(Qt::StrongFocus);
    control->installEventFilter(this);
}

KeyboardPress::~KeyboardPress() {
    delete frame_;
}

bool KeyboardPress::eventFilter(QObject* watched, QEvent* event) {
    if (frame_ && event->type() == QEvent::FocusIn)
        frame_->setWidget(control_);
    else if (frame_ && event->type() == QEvent::FocusOut)
        frame_->setWidget(nullptr);
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    auto const* const key = static_cast<QKeyEvent*>(event);
    bool const presses = key->key() == Qt::Key_Space || key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (!presses || key->isAutoRepeat())
        return QObject::eventFilter(watched, event);
    click(control_);
    return true;
}

} // namespace Panel
