#include <parameters/input/FocusOutline.hpp>

#include <QEvent>
#include <QPainter>
#include <QRegion>

namespace Talo {

namespace {

// The width of the frame in pixels: two lines of one colour and one of the other.
constexpr int lines = 3;

} // namespace

FocusOutline::FocusOutline(QWidget* widget) : QWidget(widget) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
    followSize();
    widget->installEventFilter(this);
}

FocusOutline::~FocusOutline() = default;

bool FocusOutline::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize)
        followSize();
    return QWidget::eventFilter(watched, event);
}

void FocusOutline::followSize() {
    setGeometry(parentWidget()->rect());
    // So that what changes within it is painted without it.
    setMask(QRegion(rect()).subtracted(rect().adjusted(lines, lines, -lines, -lines)));
}

void FocusOutline::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    auto const inner = rect().adjusted(lines - 1, lines - 1, 1 - lines, 1 - lines);
    // Side by side, as Qt fills many times as quickly within a rectangle as within a mask.
    for (auto const& side : QRegion(rect()).subtracted(rect().adjusted(lines, lines, -lines, -lines))) {
        painter.setClipRect(side);
        painter.fillRect(side, palette().color(QPalette::Highlight));
        painter.fillRect(side & inner, palette().color(QPalette::HighlightedText));
    }
}

} // namespace Talo
