#include <parameters/rows/BoxFrame.hpp>

#include <QPainter>
#include <QRegion>
#include <QStyle>
#include <QStyleOptionGroupBox>
#include <QWidget>

namespace Talo {

namespace {

// Large enough to have an inside under any title.
constexpr QSize sampleSize(200, 120);
// What styles may round within the edges.
constexpr int cornerSize = 8;

void drawFrame(QStyleOptionGroupBox option, QPainter& painter, QWidget const& box) {
    option.subControls = QStyle::SC_GroupBoxFrame;
    box.style()->drawComplexControl(QStyle::CC_GroupBox, &option, &painter, &box);
}

/// Whether each line of the picture is like its first one.
bool hasEqualLines(QImage const& picture) {
    for (int y = 1; y < picture.height(); ++y)
        if (picture.copy(0, y, picture.width(), 1) != picture.copy(0, 0, picture.width(), 1))
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
    left_ = lines.copy(0, 0, inDevice(edges_.left()), 1);
    right_ = lines.copy(right, 0, sample.width() - right, 1);
    isUniform_ = inside.isValid() && hasEqualLines(lines) && isFilled(middle, inside_);
}

void BoxFrame::paint(QPainter& painter, QStyleOptionGroupBox const& option, QRect const& exposed, QWidget const& box) {
    if (!isKnown_)
        look(option, box);
    auto const& whole = option.rect;
    auto const lines = isUniform_ ? whole.adjusted(0, edges_.top(), 0, -edges_.bottom()).intersected(exposed) : QRect();
    if (lines.isValid()) {
        QRect const left(0, lines.top(), edges_.left(), lines.height());
        QRect const right(whole.width() - edges_.right(), lines.top(), edges_.right(), lines.height());
        if (left.intersects(exposed))
            painter.drawImage(left, left_);
        if (right.intersects(exposed))
            painter.drawImage(right, right_);
        painter.fillRect(lines.intersected(whole.marginsRemoved({edges_.left(), 0, edges_.right(), 0})), inside_);
    }
    if (lines == exposed)
        return;
    painter.save();
    painter.setClipRegion(QRegion(exposed).subtracted(lines));
    drawFrame(option, painter, box);
    painter.restore();
}

} // namespace Talo
