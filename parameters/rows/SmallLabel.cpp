#include <parameters/rows/SmallLabel.hpp>

#include <QStylePainter>

namespace Talo {

namespace {

// Of the usual size.
constexpr double smallFont = 0.85;

} // namespace

SmallLabel::SmallLabel(QWidget* parent) : MutedLabel(QString(), parent) {
    setTextFormat(Qt::PlainText);
    alignWithLayout(*this);
    auto const follow = [this] { setFont(parentLook().scaledFont(smallFont)); };
    connect(&parentLook(), &ParentLook::changed, this, follow);
    follow();
}

SmallLabel::~SmallLabel() = default;

void SmallLabel::paintEvent(QPaintEvent* event) {
    if (fontMetrics().horizontalAdvance(text()) <= width()) {
        MutedLabel::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    auto const shortened = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    auto const begin = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter);
    painter.drawItemText(rect(), static_cast<int>(begin), palette(), isEnabled(), shortened, foregroundRole());
}

} // namespace Talo
