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

void SmallLabel::paintEvent(QPaintEvent* event) {
    if (sizeHint().width() <= width() || fontMetrics().horizontalAdvance(text()) <= width()) {
        MutedLabel::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    auto const shortened = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    auto const begin = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter);
    painter.drawItemText(rect(), static_cast<int>(begin), palette(), isEnabled(), shortened, foregroundRole());
}

} // namespace Talo
