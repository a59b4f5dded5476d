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

QSize SmallLabel::sizeHint() const {
    ensurePolished();
    if (text().isEmpty())
        return MutedLabel::sizeHint();
    // Each label of Qt lays its text out three times for this, and a form asks all rows when another pool is chosen.
    if (!textSize_.isValid() || measured_ != text()) {
        measured_ = text();
        textSize_ = fontMetrics().size(Qt::TextExpandTabs, measured_);
    }
    return textSize_.expandedTo(minimumSize());
}

void SmallLabel::changeEvent(QEvent* event) {
    MutedLabel::changeEvent(event);
    textSize_ = QSize();
}

void SmallLabel::paintEvent(QPaintEvent*) {
    // Not by the label of Qt, which asks the style for a frame that this one has not.
    bool const fits = sizeHint().width() <= width() || fontMetrics().horizontalAdvance(text()) <= width();
    auto const shown = fits ? text() : fontMetrics().elidedText(text(), Qt::ElideRight, width());
    auto const direction = text().isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
    auto const whole = static_cast<int>(alignment()) | direction;
    auto const begin = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter);
    QStylePainter(this).drawItemText(rect(), fits ? whole : static_cast<int>(begin), palette(), isEnabled(), shown,
                                     foregroundRole());
}

} // namespace Talo
