#include <parameters/rows/BoxFrame.hpp>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionGroupBox>
#include <QWidget>

namespace Talo {

namespace {

// What styles may round within the edges.
constexpr int cornerSize = 8;
// How much of a sample is between its edges. Large, as a style may round the corners of a small box less.
constexpr QSize sampleInside(80, 80);

void drawFrame(QStyleOptionGroupBox option, QPainter& painter, QWidget const& box) {
    option.subControls = QStyle::SC_GroupBoxFrame;
    box.style()->drawComplexControl(QStyle::CC_GroupBox, &option, &painter, &box);
}

/// Whether some lines of the picture, which has 32 bits for each pixel, are like the first of them.
bool hasEqualLines(QImage const& picture, int first, int end) {
    auto const bytes = static_cast<std::size_t>(picture.width()) * sizeof(QRgb);
    for (int y = first + 1; y < end; ++y)
        if (std::memcmp(picture.constScanLine(y), picture.constScanLine(first), bytes) != 0)
            return false;
    return true;
}

/// Whether some pixels of a line are like the first of them.
bool isPlain(QImage const& picture, int y, int first, int end) {
    auto const* const line = reinterpret_cast<QRgb const*>(picture.constScanLine(y));
    return std::all_of(line + first, line + end, [&](auto const pixel) { return pixel == line[first]; });
}

bool isPlain(QImage const& picture, int firstLine, int endLine, int first, int end) {
    for (int y = firstLine; y < endLine; ++y)
        if (!isPlain(picture, y, first, end))
            return false;
    return true;
}

} // namespace

void BoxFrame::look(QStyleOptionGroupBox const& option, QWidget const& box) {
    isKnown_ = true;
    auto const whole = QRect(QPoint(), option.rect.size());
    auto sampleOption = option;
    sampleOption.rect = whole;
    auto const contents =
        box.style()->subControlRect(QStyle::CC_GroupBox, &sampleOption, QStyle::SC_GroupBoxContents, &box);
    edges_ = {contents.left() + cornerSize, contents.top() + cornerSize, whole.right() - contents.right() + cornerSize,
              whole.bottom() - contents.bottom() + cornerSize};
    // Some styles leave out as much of the upper edge as the title needs.
    QSize const insideSize = sampleInside + QSize(option.fontMetrics.horizontalAdvance(option.text), 0);
    QRect const inside(QPoint(edges_.left(), edges_.top()), insideSize);
    auto const size = inside.marginsAdded(edges_).size();
    sampleOption.rect = {QPoint(), size};
    auto const ratio = box.devicePixelRatioF();
    QImage painted(size * ratio, QImage::Format_ARGB32_Premultiplied);
    painted.setDevicePixelRatio(ratio);
    painted.fill(Qt::transparent);
    QPainter painter(&painted);
    drawFrame(sampleOption, painter, box);
    painter.end();

    auto const inDevice = [ratio](int length) { return qRound(length * ratio); };
    int const left = inDevice(inside.left());
    int const right = inDevice(inside.right() + 1);
    int const top = inDevice(inside.top());
    int const bottom = inDevice(inside.bottom() + 1);
    int const rightWidth = painted.width() - right;
    int const bottomHeight = painted.height() - bottom;
    isUniform_ = hasEqualLines(painted, top, bottom) && isPlain(painted, top, left, right);
    // Corners do not fit to the lines where their sizes are rounded.
    hasUniformEnds_ = isUniform_ && ratio == std::floor(ratio) && isPlain(painted, 0, top, left, right) &&
                      isPlain(painted, bottom, painted.height(), left, right);
    if (!isUniform_)
        return;
    left_ = edgeOf(painted, {0, top}, left, Qt::Horizontal);
    right_ = edgeOf(painted, {right, top}, rightWidth, Qt::Horizontal);
    top_ = edgeOf(painted, {left, 0}, top, Qt::Vertical);
    bottom_ = edgeOf(painted, {left, bottom}, bottomHeight, Qt::Vertical);
    inside_ = edgeOf(painted, {left, top}, 1, Qt::Horizontal);
    topLeft_ = painted.copy(0, 0, left, top);
    topRight_ = painted.copy(right, 0, rightWidth, top);
    bottomLeft_ = painted.copy(0, bottom, left, bottomHeight);
    bottomRight_ = painted.copy(right, bottom, rightWidth, bottomHeight);
}

BoxFrame::Edge BoxFrame::edgeOf(QImage const& painted, QPoint const& first, int count, Qt::Orientation across) {
    auto const ratio = painted.devicePixelRatioF();
    QPoint const step = across == Qt::Horizontal ? QPoint(1, 0) : QPoint(0, 1);
    Edge edge;
    for (int line = 0; line < count; ++line) {
        auto const place = first + line * step;
        auto const pixel = reinterpret_cast<QRgb const*>(painted.constScanLine(place.y()))[place.x()];
        if (edge.empty() || edge.back().painted != pixel)
            edge.push_back({line / ratio, 0, pixel, {}});
        edge.back().end = (line + 1) / ratio;
    }
    return edge;
}

void BoxFrame::showOn(QColor const& background) {
    background_ = background;
    std::vector<Stripe*> stripes;
    for (auto* const edge : {&left_, &right_, &top_, &bottom_, &inside_})
        for (auto& stripe : *edge)
            stripes.push_back(&stripe);
    if (stripes.empty())
        return;
    QImage painted(static_cast<int>(stripes.size()), 1, QImage::Format_ARGB32_Premultiplied);
    auto* const pixels = reinterpret_cast<QRgb*>(painted.scanLine(0));
    std::transform(stripes.begin(), stripes.end(), pixels, [](auto const* stripe) { return stripe->painted; });
    QImage shown(painted.size(), painted.format());
    shown.fill(background.isValid() ? background : QColor(Qt::transparent));
    QPainter(&shown).drawImage(0, 0, painted);
    for (int number = 0; number < shown.width(); ++number)
        stripes[static_cast<std::size_t>(number)]->shown = shown.pixelColor(number, 0);
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

void BoxFrame::fill(QPainter& painter, QRect const& edge, Edge const& stripes, Qt::Orientation across,
                    QColor const& behind) {
    for (auto const& stripe : stripes) {
        QRectF part(edge);
        if (across == Qt::Horizontal)
            part = {edge.left() + stripe.begin, part.top(), stripe.end - stripe.begin, part.height()};
        else
            part = {part.left(), edge.top() + stripe.begin, part.width(), stripe.end - stripe.begin};
        if (stripe.shown.alpha() > 0 && stripe.shown != behind)
            painter.fillRect(part, stripe.shown);
    }
}

void BoxFrame::paintLines(QPainter& painter, QRect const& lines, QRegion const& exposed) const {
    // On a background all is opaque. Most of an edge is like the inside, and a high and narrow part takes long to fill.
    auto const& inside = inside_.front().shown;
    bool const isOpaque = background_.isValid();
    auto const behind = isOpaque ? inside : QColor();
    auto const filled = isOpaque ? lines : lines.marginsRemoved({edges_.left(), 0, edges_.right(), 0});
    if (inside.alpha() > 0)
        painter.fillRect(filled & exposed.boundingRect(), inside);
    QRect const left(lines.left(), lines.top(), edges_.left(), lines.height());
    QRect const right(lines.right() + 1 - edges_.right(), lines.top(), edges_.right(), lines.height());
    // Once for all parts that are exposed, as a line that is not opaque must not be painted over itself.
    if (exposed.intersects(left))
        fill(painter, left, left_, Qt::Horizontal, behind);
    if (exposed.intersects(right))
        fill(painter, right, right_, Qt::Horizontal, behind);
}

void BoxFrame::paintCorner(QPainter& painter, QRect const& place, QImage const& corner) const {
    if (background_.isValid())
        painter.fillRect(place, background_);
    painter.drawImage(QRectF(place), corner, QRectF(corner.rect()));
}

void BoxFrame::paintEnds(QPainter& painter, QRect const& whole, QRegion const& exposed) const {
    auto const between = whole.marginsRemoved(edges_);
    auto const paintEnd = [&](int top, int height, QImage const& left, Edge const& stripes, QImage const& right) {
        if (!exposed.intersects(QRect(whole.left(), top, whole.width(), height)))
            return;
        paintCorner(painter, {whole.left(), top, edges_.left(), height}, left);
        fill(painter, {between.left(), top, between.width(), height}, stripes, Qt::Vertical, {});
        paintCorner(painter, {between.right() + 1, top, edges_.right(), height}, right);
    };
    paintEnd(whole.top(), edges_.top(), topLeft_, top_, topRight_);
    paintEnd(between.bottom() + 1, edges_.bottom(), bottomLeft_, bottom_, bottomRight_);
}

void BoxFrame::paint(QPainter& painter, QStyleOptionGroupBox const& option, QRegion const& exposed,
                     QColor const& background, QWidget const& box) {
    bool const isNew = !isKnown_;
    if (isNew)
        look(option, box);
    if (isNew || background != background_)
        showOn(background);
    auto const& whole = option.rect;
    auto const seen = exposed.boundingRect();
    bool const isUniform = isUniform_ && whole.marginsRemoved(edges_).isValid();
    auto lines = isUniform ? whole.adjusted(0, edges_.top(), 0, -edges_.bottom()) : QRect();
    lines = lines.intersected({lines.left(), seen.top(), lines.width(), seen.height()});
    if (lines.isValid())
        paintLines(painter, lines, exposed);
    auto const rest = exposed.subtracted(lines);
    if (rest.isEmpty())
        return;
    if (isUniform && hasUniformEnds_) {
        paintEnds(painter, whole, exposed);
        return;
    }
    if (background.isValid())
        for (auto const& part : rest)
            painter.fillRect(part, background);
    painter.save();
    painter.setClipRegion(rest);
    drawFrame(option, painter, box);
    painter.restore();
}

} // namespace Talo
