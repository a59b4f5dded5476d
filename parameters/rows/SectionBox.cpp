#include <parameters/rows/SectionBox.hpp>

#include <QContextMenuEvent>
#include <QImage>
#include <QMouseEvent>
#include <QStyleOptionGroupBox>
#include <QStylePainter>

namespace Talo {

SectionBox::SectionBox(QString const& title, QWidget* parent) : QGroupBox(title, parent) {
    // The arrow takes the place of the check box, so that the style leaves room for it.
    setCheckable(!title.isEmpty());
    // Tab goes from row to row; a menu folds sections by keyboard.
    setFocusPolicy(Qt::NoFocus);
}

SectionBox::~SectionBox() = default;

void SectionBox::setFolded(bool folded) {
    isFolded_ = folded;
    update();
}

int SectionBox::foldedHeight() const {
    return contentsMargins().top();
}

QColor SectionBox::insideColour() const {
    // Large enough to have an inside under any title.
    constexpr QSize size(200, 100);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    option.rect = {QPoint(), size};
    auto const inside = style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxContents, this);
    option.subControls = QStyle::SC_GroupBoxFrame;
    QPainter painter(&image);
    style()->drawComplexControl(QStyle::CC_GroupBox, &option, &painter, this);
    painter.end();
    auto const colour = image.pixelColor(inside.center());
    QImage filled(image.size(), image.format());
    filled.fill(colour);
    return image.copy(inside) == filled.copy(inside) ? colour : QColor();
}

void SectionBox::changeEvent(QEvent* event) {
    QGroupBox::changeEvent(event);
    inside_.reset();
}

void SectionBox::paintEvent(QPaintEvent* event) {
    QStylePainter painter(this);
    // Some styles load a picture for each frame that they paint, and most changes are within it.
    if (!isFolded_ && contentsRect().contains(event->rect())) {
        if (!inside_)
            inside_ = insideColour();
        if (inside_->isValid()) {
            painter.fillRect(event->rect(), *inside_);
            return;
        }
    }
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    // Where the style has them, with room for a check box, in whose place the arrow is.
    auto const partOf = [&](QStyle::SubControl part) {
        return style()->subControlRect(QStyle::CC_GroupBox, &option, part, this);
    };
    auto const label = partOf(QStyle::SC_GroupBoxLabel);
    QStyleOption arrow;
    arrow.initFrom(this);
    arrow.rect = partOf(QStyle::SC_GroupBoxCheckBox);
    if (!isFolded_) {
        auto frame = option;
        frame.subControls = QStyle::SC_GroupBoxFrame;
        painter.drawComplexControl(QStyle::CC_GroupBox, frame);
    }
    if (title().isEmpty())
        return;
    painter.drawItemText(label, Qt::AlignCenter, palette(), isEnabled(), title(), QPalette::WindowText);
    auto const aside =
        layoutDirection() == Qt::LeftToRight ? QStyle::PE_IndicatorArrowRight : QStyle::PE_IndicatorArrowLeft;
    painter.drawPrimitive(isFolded_ ? aside : QStyle::PE_IndicatorArrowDown, arrow);
}

bool SectionBox::isOnTitle(QPoint const& place) const {
    return !title().isEmpty() && place.y() < foldedHeight() && rect().contains(place);
}

void SectionBox::mousePressEvent(QMouseEvent* event) {
    isPressed_ = event->button() == Qt::LeftButton && isOnTitle(event->pos());
    event->setAccepted(isPressed_);
}

void SectionBox::mouseReleaseEvent(QMouseEvent* event) {
    bool const isClick = std::exchange(isPressed_, false) && isOnTitle(event->pos());
    event->setAccepted(isClick);
    if (isClick)
        emit foldRequested(!isFolded_);
}

void SectionBox::contextMenuEvent(QContextMenuEvent* event) {
    bool const isForSection = isOnTitle(event->pos());
    event->setAccepted(isForSection);
    if (isForSection)
        emit menuRequested(event->globalPos());
}

} // namespace Talo
