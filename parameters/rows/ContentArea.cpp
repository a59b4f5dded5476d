#include <parameters/rows/ContentArea.hpp>

#include <QEvent>
#include <QScrollBar>

namespace Talo {

namespace {

// In pixels.
constexpr int widestMinimum = 720;

} // namespace

ContentArea::ContentArea(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
}

ContentArea::~ContentArea() = default;

QSize ContentArea::minimumSizeHint() const {
    int const content = widget() ? qMax(widget()->minimumSizeHint().width(), widget()->minimumWidth()) : 0;
    return {qMin(content + verticalScrollBar()->sizeHint().width(), widestMinimum),
            QScrollArea::minimumSizeHint().height()};
}

void ContentArea::focusInEvent(QFocusEvent* event) {
    QScrollArea::focusInEvent(event);
    if (!outline_)
        outline_ = new FocusOutline(this);
    outline_->raise();
    outline_->show();
}

void ContentArea::focusOutEvent(QFocusEvent* event) {
    QScrollArea::focusOutEvent(event);
    if (outline_)
        outline_->hide();
}

bool ContentArea::eventFilter(QObject* watched, QEvent* event) {
    // The base watches the content already; a derived class may watch more.
    if (event->type() == QEvent::LayoutRequest && watched == widget())
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

} // namespace Talo
