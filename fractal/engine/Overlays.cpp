#include <fractal/engine/Overlays.hpp>

#include <algorithm>
#include <cmath>
#include <fractal/engine/ColourScale.hpp>
#include <fractal/engine/Titles.hpp>
#include <QLinearGradient>

namespace Fractal {

namespace {

using Point = FractalView::Point;

// Places beyond are clamped, which looks the same: painting with huge coordinates is slow.
constexpr double farOff = 1e5;
constexpr double escapeRadius = 2;

QPen linePen(QColor colour, int opacity, double width) {
    colour.setAlpha(opacity);
    return {colour, width};
}

/// Rounds a length up to 1, 2 or 5 times a power of ten.
double roundLength(double length) {
    double const power = std::pow(10, std::floor(std::log10(length)));
    for (double const factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= length)
            return factor * power;
    }
    return 10 * power;
}

} // namespace

Overlays::Overlays(FractalSettings const& settings, QSize const& size)
    : settings_(settings), size_(size), formula_(settings), view_(settings, size) {}

void Overlays::paint(QPainter& painter, FractalPoints const& points) const {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    paintContours(painter, points);
    if (settings_.grid)
        paintGrid(painter);
    if (settings_.axes)
        paintAxes(painter);
    if (settings_.escapeCircle)
        paintEscapeCircle(painter);
    if (settings_.orbit)
        paintOrbit(painter);
    if (settings_.legend)
        paintLegend(painter);
    painter.restore();
}

double Overlays::reach() const {
    return std::hypot(size_.width(), size_.height()) * view_.scale();
}

double Overlays::unit() const {
    return size_.height() / 100.0;
}

void Overlays::paintContours(QPainter& painter, FractalPoints const& points) const {
    if (settings_.contours.empty())
        return;
    int const width = points.computed.width();
    int const height = points.computed.height();
    QImage lines(points.computed, QImage::Format_ARGB32_Premultiplied);
    lines.fill(Qt::transparent);
    auto const count = [&](int x, int y) {
        return points
            .counts[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
    };
    auto const passes = [&](float from, float to) {
        return std::any_of(settings_.contours.begin(), settings_.contours.end(), [&](int level) {
            auto const steps = static_cast<float>(level);
            return (from < steps) != (to < steps);
        });
    };
    QRgb const ink = qPremultiply(qRgba(255, 255, 255, 150));
    for (int y = 0; y < height; ++y) {
        auto* const line = reinterpret_cast<QRgb*>(lines.scanLine(y));
        for (int x = 0; x < width; ++x) {
            bool const right = x + 1 < width && passes(count(x, y), count(x + 1, y));
            bool const below = y + 1 < height && passes(count(x, y), count(x, y + 1));
            if (right || below)
                line[x] = ink;
        }
    }
    painter.drawImage(QRectF(QPointF(), size_), lines);
}

void Overlays::paintLine(QPainter& painter, Point const& through, Point const& direction) const {
    // The line may start far outside the picture, so draw the part that is nearest to the picture's centre.
    auto const offset = view_.centre() - through;
    auto const nearest = through + direction * (offset.real() * direction.real() + offset.imag() * direction.imag());
    painter.drawLine(view_.placeOf(nearest - direction * reach()), view_.placeOf(nearest + direction * reach()));
}

void Overlays::paintGrid(QPainter& painter) const {
    painter.setPen(linePen(Qt::white, 70, std::max(1.0, 0.2 * unit())));
    // About six cells from top to bottom.
    double const mesh = roundLength(size_.height() * view_.scale() / 6);
    auto const number = [&](double length) { return std::round(length / mesh); };
    int const outermost = static_cast<int>(std::ceil(reach() / mesh));
    for (int line = -outermost; line <= outermost; ++line) {
        paintLine(painter, {(number(view_.centre().real()) + line) * mesh, view_.centre().imag()}, {0, 1});
        paintLine(painter, {view_.centre().real(), (number(view_.centre().imag()) + line) * mesh}, {1, 0});
    }
}

void Overlays::paintAxes(QPainter& painter) const {
    painter.setPen(linePen(Qt::white, 190, std::max(1.0, 0.3 * unit())));
    // Skip an axis that is outside the picture.
    if (std::abs(view_.centre().imag()) < reach())
        paintLine(painter, {view_.centre().real(), 0}, {1, 0});
    if (std::abs(view_.centre().real()) < reach())
        paintLine(painter, {0, view_.centre().imag()}, {0, 1});
}

void Overlays::paintEscapeCircle(QPainter& painter) const {
    double const radius = escapeRadius / view_.scale();
    // A circle this large is outside the picture.
    if (radius > farOff)
        return;
    QPen pen = linePen(Qt::cyan, 220, std::max(1.0, 0.4 * unit()));
    pen.setStyle(Qt::DashLine);
    painter.setPen(pen);
    painter.drawEllipse(view_.placeOf({}), radius, radius);
}

void Overlays::paintOrbit(QPainter& painter) const {
    constexpr int longestOrbit = 60;
    QPolygonF way;
    for (auto const& point : formula_.orbitOf(view_.centre(), std::min(settings_.iterations, longestOrbit))) {
        auto const place = view_.placeOf(point);
        way << QPointF(std::clamp(place.x(), -farOff, farOff), std::clamp(place.y(), -farOff, farOff));
    }
    painter.setPen(linePen(Qt::green, 200, std::max(1.0, 0.35 * unit())));
    painter.drawPolyline(way);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(Qt::green));
    for (auto const& place : std::as_const(way))
        painter.drawEllipse(place, 0.9 * unit(), 0.9 * unit());
    painter.setBrush(Qt::NoBrush);
}

void Overlays::paintLegend(QPainter& painter) const {
    ColourScale const colours(settings_);
    auto const font = Titles::font(3.2 * unit(), false);
    QFontMetricsF const metrics(font);
    double const margin = 1.6 * unit();
    QRectF const texts = settings_.legendText.isEmpty()
                             ? QRectF()
                             : metrics.boundingRect(QRectF(0, 0, 0.5 * size_.width(), 0.4 * size_.height()),
                                                    Qt::AlignLeft | Qt::TextWordWrap, settings_.legendText);
    QSizeF const bar(std::max(texts.width(), 32 * unit()), 3 * unit());
    double const gap = texts.isNull() ? 0 : margin;
    QRectF box(0, 0, bar.width() + 2 * margin, bar.height() + gap + texts.height() + 2 * margin);
    // Above the band with the caption.
    box.moveBottomRight(QPointF(size_.width() - 2 * unit(), size_.height() - 9 * unit()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 140));
    painter.drawRoundedRect(box, unit(), unit());

    QRectF scale(box.topLeft() + QPointF(margin, margin), bar);
    QRectF inside = scale;
    inside.setRight(scale.left() + bar.height());
    scale.setLeft(inside.right() + margin / 2);
    painter.setBrush(ColourScale::forPainting(colours.inside()));
    painter.drawRect(inside);
    QLinearGradient gradient(scale.topRight(), scale.topLeft());
    constexpr int stops = 32;
    for (int stop = 0; stop <= stops; ++stop) {
        double const place = static_cast<double>(stop) / stops;
        gradient.setColorAt(place, ColourScale::forPainting(colours.colourAt(place)));
    }
    painter.setBrush(gradient);
    painter.drawRect(scale);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(Qt::white);
    painter.setFont(font);
    painter.drawText(QRectF(inside.left(), scale.bottom() + gap, bar.width() + unit(), texts.height()),
                     Qt::AlignLeft | Qt::TextWordWrap, settings_.legendText);
}

} // namespace Fractal
