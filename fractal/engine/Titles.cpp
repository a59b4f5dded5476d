#include <fractal/engine/Titles.hpp>

#include <algorithm>
#include <QFontMetricsF>

namespace Fractal {

namespace {

/// Draws one line with a text at each end. Texts that do not fit are elided: the right one at half the line, the left
/// one where the right one begins.
void paintLine(QPainter& painter, QRectF const& line, QString const& left, QFont const& leftFont, QString const& right,
               QFont const& rightFont) {
    QFontMetricsF const rightMetrics(rightFont, painter.device());
    QFontMetricsF const leftMetrics(leftFont, painter.device());
    auto const shownRight = rightMetrics.elidedText(right, Qt::ElideRight, line.width() / 2);
    double const gap = rightMetrics.averageCharWidth() * 2;
    double const room = line.width() - rightMetrics.horizontalAdvance(shownRight) - gap;
    painter.setFont(leftFont);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     leftMetrics.elidedText(left, Qt::ElideRight, room));
    painter.setFont(rightFont);
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, shownRight);
}

} // namespace

Titles::Titles(FractalSettings const& settings) : settings_(settings) {}

QFont Titles::font(double height, bool bold) {
    QFont font;
    font.setPixelSize(std::max(1, static_cast<int>(height)));
    font.setBold(bold);
    return font;
}

void Titles::paintOver(QPainter& painter, QSizeF const& size) const {
    double const unit = size.height() / 100;
    double const margin = 2 * unit;
    painter.save();
    auto const paintBand = [&](QRectF const& band, QString const& left, double leftHeight, bool bold,
                               QString const& right) {
        if (left.isEmpty() && right.isEmpty())
            return;
        painter.fillRect(band, QColor(0, 0, 0, 110));
        painter.setPen(Qt::white);
        paintLine(painter, band.adjusted(margin, 0, -margin, 0), left, font(leftHeight, bold), right,
                  font(3.4 * unit, false));
    };
    paintBand({0, 0, size.width(), 9 * unit}, settings_.heading, 5 * unit, true, settings_.author);
    paintBand({0, size.height() - 7 * unit, size.width(), 7 * unit}, settings_.caption, 3.4 * unit, false,
              settings_.date);
    painter.restore();
}

void Titles::paintPage(QPainter& painter, QRectF const& page, QImage const& picture) const {
    double const unit = page.height() / 100;
    auto const plain = font(2.4 * unit, false);
    painter.save();
    painter.setPen(Qt::black);
    QRectF room = page;
    if (!settings_.heading.isEmpty() || !settings_.author.isEmpty()) {
        QRectF const line(room.left(), room.top(), room.width(), 6 * unit);
        paintLine(painter, line, settings_.heading, font(4 * unit, true), settings_.author, plain);
        room.setTop(line.bottom() + unit);
    }
    if (!settings_.legendText.isEmpty()) {
        QFontMetricsF const metrics(plain, painter.device());
        auto const flags = Qt::AlignLeft | Qt::TextWordWrap;
        auto const height = std::min(metrics.boundingRect(room, flags, settings_.legendText).height(), 25 * unit);
        QRectF const text(room.left(), room.bottom() - height, room.width(), height);
        painter.setFont(plain);
        painter.drawText(text, flags, settings_.legendText);
        room.setBottom(text.top() - unit);
    }
    if (!settings_.caption.isEmpty() || !settings_.date.isEmpty()) {
        QRectF const line(room.left(), room.bottom() - 4 * unit, room.width(), 4 * unit);
        paintLine(painter, line, settings_.caption, plain, settings_.date, plain);
        room.setBottom(line.top() - unit);
    }
    QRectF target(QPointF(), QSizeF(picture.size()).scaled(room.size(), Qt::KeepAspectRatio));
    target.moveCenter(room.center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, picture);
    painter.restore();
}

} // namespace Fractal
