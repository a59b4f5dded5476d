#include <parameters/rows/BoxFrame.hpp>

#include <algorithm>
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
    sample_ = QImage(size * ratio, QImage::Format_ARGB32_Premultiplied);
    sample_.setDevicePixelRatio(ratio);
    sample_.fill(Qt::transparent);
    QPainter painter(&sample_);
    drawFrame(sampleOption, painter, box);
    painter.end();

    auto const inDevice = [ratio](int length) { return qRound(length * ratio); };
    int const left = inDevice(inside.left());
    int const right = inDevice(inside.right() + 1);
    int const top = inDevice(inside.top());
    int const bottom = inDevice(inside.bottom() + 1);
    isUniform_ = hasEqualLines(sample_, top, bottom) && isPlain(sample_, top, left, right);
    if (!isUniform_)
        return;
    hasUniformEnds_ = isPlain(sample_, 0, top, left, right) && isPlain(sample_, bottom, sample_.height(), left, right);
    left_ = edgeOf({0, top}, left, Qt::Horizontal);
    right_ = edgeOf({right, top}, sample_.width() - right, Qt::Horizontal);
    top_ = edgeOf({left, 0}, top, Qt::Vertical);
    bottom_ = edgeOf({left, bottom}, sample_.height() - bottom, Qt::Vertical);
    inside_ = edgeOf({left, top}, 1, Qt::Horizontal);
}

BoxFrame::Edge BoxFrame::edgeOf(QPoint const& first, int count, Qt::Orientation across) const {
    auto const ratio = sample_.devicePixelRatioF();
    QPoint const step = across == Qt::Horizontal ? QPoint(1, 0) : QPoint(0, 1);
    Edge edge;
    for (int line = 0; line < count; ++line) {
        auto const place = first + line * step;
        auto const painted = reinterpret_cast<QRgb const*>(sample_.constScanLine(place.y()))[place.x()];
        if (edge.empty() || edge.back().painted != painted)
            edge.push_back({line / ratio, 0, painted, {}});
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

void BoxFrame::paintCorner(QPainter& painter, QRect const& corner, QRect const& whole) const {
    auto const ratio = sample_.devicePixelRatioF();
    // The place of the corner in the sample, which has another size than the box.
    auto const size = QSizeF(sample_.size()) / ratio;
    QPointF const place(corner.left() == whole.left() ? 0 : size.width() - corner.width(),
                        corner.top() == whole.top() ? 0 : size.height() - corner.height());
    if (background_.isValid())
        painter.fillRect(corner, background_);
    painter.drawImage(QRectF(corner), sample_, QRectF(place * ratio, QSizeF(corner.size()) * ratio));
}

void BoxFrame::paintEnds(QPainter& painter, QRect const& whole, QRegion const& exposed) const {
    auto const between = whole.marginsRemoved(edges_);
    auto const paintEnd = [&](int top, int height, Edge const& stripes) {
        QRect const end(whole.left(), top, whole.width(), height);
        if (!exposed.intersects(end))
            return;
        paintCorner(painter, {end.left(), top, edges_.left(), height}, whole);
        fill(painter, {between.left(), top, between.width(), height}, stripes, Qt::Vertical, {});
        paintCorner(painter, {between.right() + 1, top, edges_.right(), height}, whole);
    };
    paintEnd(whole.top(), edges_.top(), top_);
    paintEnd(between.bottom() + 1, edges_.bottom(), bottom_);
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
