#include <panel/KeyboardPress.hpp>
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

KeyboardPress::KeyboardPress(QWidget* editor) : QObject(editor), editor_(editor), frame_(new QFocusFrame(editor)) {
    frame_->hide();
    editor->setFocusPolicy(Qt::StrongFocus);
    editor->installEventFilter(this);
}

KeyboardPress::~KeyboardPress() {
    delete frame_;
}

bool KeyboardPress::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn)
        frame_->setWidget(editor_);
    else if (event->type() == QEvent::FocusOut)
        frame_->setWidget(nullptr);
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    auto const* const key = static_cast<QKeyEvent*>(event);
    bool const presses = key->key() == Qt::Key_Space || key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (!presses || key->isAutoRepeat())
        return QObject::eventFilter(watched, event);
    click(editor_);
    return true;
}

} // namespace Panel
