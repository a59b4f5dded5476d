#include "Switch.hpp"

#include <QPainter>
#include <QStyle>

namespace MoreInputs {

namespace {

// In pixels, around the track, for the focus.
constexpr int border = 3;

} // namespace

Switch::Switch(QWidget* parent) : QCheckBox(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

Switch::~Switch() = default;

QSize Switch::sizeHint() const {
    int const height = fontMetrics().height();
    return {2 * height + 2 * border, height + 2 * border};
}

void Switch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF const track = QRectF(rect()).adjusted(border, border, -border, -border);
    double const radius = track.height() / 2;
    auto const outline = palette().color(QPalette::WindowText);
    painter.setPen(QPen(outline, 1));
    painter.setBrush(palette().color(isChecked() ? QPalette::Highlight : QPalette::Base));
    painter.drawRoundedRect(track.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);

    bool const isAtRight = isChecked() != (layoutDirection() == Qt::RightToLeft);
    QPointF const centre(isAtRight ? track.right() - radius : track.left() + radius, track.center().y());
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(isChecked() ? QPalette::HighlightedText : QPalette::WindowText));
    painter.drawEllipse(centre, radius - 4, radius - 4);

    if (hasFocus()) {
        painter.setPen(QPen(outline, 1, Qt::DotLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius + border, radius + border);
    }
}

} // namespace MoreInputs
