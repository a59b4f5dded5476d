#include <parameters/rows/SectionBox.hpp>

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPaintEvent>
#include <QStyleOptionGroupBox>

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

void SectionBox::changeEvent(QEvent* event) {
    QGroupBox::changeEvent(event);
    frame_.forget();
    setAttribute(Qt::WA_OpaquePaintEvent, BoxFrame::backgroundOf(*this).isValid());
}

void SectionBox::paintEvent(QPaintEvent* event) {
    auto const background = BoxFrame::backgroundOf(*this);
    bool const isOpaque = testAttribute(Qt::WA_OpaquePaintEvent);
    // To fill the inside once, and not with the background before, is a tenth of the time until a change is painted.
    setAttribute(Qt::WA_OpaquePaintEvent, background.isValid());
    if (isOpaque && !background.isValid()) {
        // Without an event, as when the parent fills itself no longer: the background is painted first.
        update();
        return;
    }
    QPainter painter(this);
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    if (!isFolded_)
        frame_.paint(painter, option, event->region(), background, *this);
    else if (background.isValid())
        for (auto const& part : event->region())
            painter.fillRect(part, background);
    // Most changes are below the title.
    if (!title().isEmpty() && event->rect().top() < foldedHeight())
        paintTitle(painter, option);
}

void SectionBox::paintTitle(QPainter& painter, QStyleOptionGroupBox const& option) const {
    // Where the style has them, with room for a check box, in whose place the arrow is.
    auto const partOf = [&](QStyle::SubControl part) {
        return style()->subControlRect(QStyle::CC_GroupBox, &option, part, this);
    };
    style()->drawItemText(&painter, partOf(QStyle::SC_GroupBoxLabel), Qt::AlignCenter, palette(), isEnabled(), title(),
                          QPalette::WindowText);
    QStyleOption arrow;
    arrow.initFrom(this);
    arrow.rect = partOf(QStyle::SC_GroupBoxCheckBox);
    auto const aside =
        layoutDirection() == Qt::LeftToRight ? QStyle::PE_IndicatorArrowRight : QStyle::PE_IndicatorArrowLeft;
    style()->drawPrimitive(isFolded_ ? aside : QStyle::PE_IndicatorArrowDown, &arrow, &painter, this);
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
