#include <parameters/input/FocusOutline.hpp>

#include <QEvent>
#include <QPainter>

namespace Talo {

FocusOutline::FocusOutline(QWidget* widget) : QWidget(widget) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
    setGeometry(widget->rect());
    widget->installEventFilter(this);
}

FocusOutline::~FocusOutline() = default;

bool FocusOutline::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

void FocusOutline::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    auto frame = rect();
    auto const draw = [&](QPalette::ColorRole role) {
        painter.setPen(palette().color(role));
        painter.drawRect(frame.adjusted(0, 0, -1, -1));
        frame.adjust(1, 1, -1, -1);
    };
    draw(QPalette::Highlight);
    draw(QPalette::Highlight);
    draw(QPalette::HighlightedText);
}

} // namespace Talo
