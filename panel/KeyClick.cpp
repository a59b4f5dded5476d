#include <panel/KeyClick.hpp>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace Panel {

namespace {

/// Lies over a widget and draws the frame of the focus.
class FocusFrame : public QWidget {
public:
    explicit FocusFrame(QWidget* parent) : QWidget(parent) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        // The style's own frame cannot be made out on a coloured ground.
        painter.setPen(QPen(palette().color(QPalette::Base), 1));
        painter.drawRect(rect().adjusted(2, 2, -3, -3));
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
};

} // namespace

KeyClick::KeyClick(QWidget* editor) : QObject(editor), editor_(editor), frame_(new FocusFrame(editor)) {
    editor->setFocusPolicy(Qt::TabFocus);
    editor->installEventFilter(this);
}

KeyClick::~KeyClick() = default;

bool KeyClick::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::FocusIn:
        frame_->setGeometry(editor_->rect());
        frame_->show();
        break;
    case QEvent::FocusOut:
        frame_->hide();
        break;
    case QEvent::Resize:
        frame_->setGeometry(editor_->rect());
        break;
    case QEvent::KeyPress: {
        auto const key = static_cast<QKeyEvent const*>(event)->key();
        if (key != Qt::Key_Space && key != Qt::Key_Return && key != Qt::Key_Enter)
            break;
        click();
        return true;
    }
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void KeyClick::click() {
    QPointer<QWidget> const editor(editor_);
    QPointF const middle = editor_->rect().center();
    for (auto const type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        // What opens at the press may take the editor away.
        if (!editor)
            return;
        QMouseEvent event(type, middle, editor->mapToGlobal(middle.toPoint()), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(editor, &event);
    }
}

} // namespace Panel
