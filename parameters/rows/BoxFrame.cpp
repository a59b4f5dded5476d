#include <parameters/rows/BoxFrame.hpp>

#include <cstring>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionGroupBox>
#include <QWidget>

namespace Talo {

namespace {

// Large enough to have an inside under any title.
constexpr QSize sampleSize(100, 120);
// What styles may round within the edges.
constexpr int cornerSize = 8;

void drawFrame(QStyleOptionGroupBox option, QPainter& painter, QWidget const& box) {
    option.subControls = QStyle::SC_GroupBoxFrame;
    box.style()->drawComplexControl(QStyle::CC_GroupBox, &option, &painter, &box);
}

/// Whether each line of the picture, which has 32 bits for each pixel, is like its first one.
bool hasEqualLines(QImage const& picture) {
    auto const bytes = static_cast<std::size_t>(picture.width()) * sizeof(QRgb);
    for (int y = 1; y < picture.height(); ++y)
        if (std::memcmp(picture.constScanLine(y), picture.constScanLine(0), bytes) != 0)
            return false;
    return true;
}

/// Whether all pixels are of this colour.
bool isFilled(QImage const& picture, QColor const& colour) {
    QImage filled(picture.size(), picture.format());
    filled.fill(colour);
    return picture == filled;
}

} // namespace

void BoxFrame::look(QStyleOptionGroupBox const& option, QWidget const& box) {
    isKnown_ = true;
    auto sampleOption = option;
    sampleOption.rect = {QPoint(), sampleSize};
    auto const contents =
        box.style()->subControlRect(QStyle::CC_GroupBox, &sampleOption, QStyle::SC_GroupBoxContents, &box);
    auto const inside = contents.adjusted(cornerSize, cornerSize, -cornerSize, -cornerSize);
    edges_ = {inside.left(), inside.top(), sampleSize.width() - 1 - inside.right(),
              sampleSize.height() - 1 - inside.bottom()};
    auto const ratio = box.devicePixelRatioF();
    QImage sample(sampleSize * ratio, QImage::Format_ARGB32_Premultiplied);
    sample.setDevicePixelRatio(ratio);
    sample.fill(Qt::transparent);
    QPainter painter(&sample);
    drawFrame(sampleOption, painter, box);
    painter.end();

    sample.setDevicePixelRatio(1);
    auto const inDevice = [ratio](int length) { return qRound(length * ratio); };
    int const right = inDevice(edges_.left() + inside.width());
    auto const lines = sample.copy(0, inDevice(edges_.top()), sample.width(), inDevice(inside.height()));
    auto const middle = lines.copy(inDevice(edges_.left()), 0, inDevice(inside.width()), 1);
    inside_ = middle.pixelColor(0, 0);
    left_ = lines.copy(0, 0, inDevice(edges_.left()), lines.height());
    right_ = lines.copy(right, 0, sample.width() - right, lines.height());
    isUniform_ = inside.isValid() && hasEqualLines(lines) && isFilled(middle, inside_);
    background_ = QColor();
}

void BoxFrame::paintEdge(QPainter& painter, QRect const& edge, QImage const& lines) const {
    // Piece by piece, as to stretch one line is many times slower.
    int const step = sampleSize.height() - edges_.top() - edges_.bottom();
    for (int y = edge.top(); y <= edge.bottom(); y += step) {
        QRectF const piece(edge.left(), y, edge.width(), qMin(step, edge.bottom() + 1 - y));
        painter.drawImage(piece, lines, QRectF(0, 0, lines.width(), piece.height() * lines.height() / step));
    }
}

QColor BoxFrame::backgroundOf(QWidget const& box) {
    auto const* const parent = box.parentWidget();
    bool const isFilledByParent = parent && parent->autoFillBackground() && !box.autoFillBackground() &&
                                  !parent->testAttribute(Qt::WA_StyledBackground);
    if (!isFilledByParent)
        return {};
    auto const& brush = parent->palette().brush(parent->backgroundRole());
    return brush.style() == Qt::SolidPattern && brush.isOpaque() ? brush.color() : QColor();
}

QColor BoxFrame::insideOn(QColor const& background) {
    if (background != background_) {
        background_ = background;
        QImage both(1, 1, QImage::Format_RGB32);
        both.fill(background);
        QPainter(&both).fillRect(both.rect(), inside_);
        insideOnBackground_ = both.pixelColor(0, 0);
    }
    return insideOnBackground_;
}

void BoxFrame::paintLines(QPainter& painter, QRect const& lines, QRegion const& exposed, QColor const& inside) const {
    QRect const left(lines.left(), lines.top(), edges_.left(), lines.height());
    QRect const right(lines.right() + 1 - edges_.right(), lines.top(), edges_.right(), lines.height());
    // Once for all parts that are exposed, as a line that is not opaque must not be painted over itself.
    if (exposed.intersects(left))
        paintEdge(painter, left, left_);
    if (exposed.intersects(right))
        paintEdge(painter, right, right_);
    if (inside.alpha() > 0)
        painter.fillRect(lines.marginsRemoved({edges_.left(), 0, edges_.right(), 0}) & exposed.boundingRect(), inside);
}

void BoxFrame::paint(QPainter& painter, QStyleOptionGroupBox const& option, QRegion const& exposed,
                     QColor const& background, QWidget const& box) {
    if (!isKnown_)
        look(option, box);
    auto const& whole = option.rect;
    auto const seen = exposed.boundingRect();
    auto lines = isUniform_ ? whole.adjusted(0, edges_.top(), 0, -edges_.bottom()) : QRect();
    lines = lines.intersected({lines.left(), seen.top(), lines.width(), seen.height()});
    auto const inside = lines.marginsRemoved({edges_.left(), 0, edges_.right(), 0});
    if (background.isValid())
        for (auto const& part : exposed.subtracted(inside))
            painter.fillRect(part, background);
    if (lines.isValid())
        paintLines(painter, lines, exposed, background.isValid() ? insideOn(background) : inside_);
    auto const rest = exposed.subtracted(lines);
    if (rest.isEmpty())
        return;
    painter.save();
    painter.setClipRegion(rest);
    drawFrame(option, painter, box);
    painter.restore();
}

} // namespace Talo
