#include <parameters/rows/NameLabel.hpp>

#include <algorithm>
#include <parameters/rows/MutedLabel.hpp>

namespace Talo {

namespace {

/// Whether a label may show a character in another way than as it is in one line.
bool isSpecial(QChar character) {
    return character == QLatin1Char('&') || character < QLatin1Char(' ') || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

} // namespace

NameLabel::NameLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    alignWithLayout(*this);
}

NameLabel::~NameLabel() = default;

int NameLabel::wholeWidth() const {
    return wholeSize().width();
}

QSize NameLabel::wholeSize() const {
    if (!wholeSize_.isValid())
        wholeSize_ = fontMetrics().size(Qt::TextSingleLine, name_);
    return wholeSize_;
}

bool NameLabel::isPlain() const {
    return !name_.isEmpty() && width_ >= wholeWidth() && std::none_of(name_.begin(), name_.end(), isSpecial);
}

// Each label of Qt lays its text out three times for its hints, and the whole name is measured already.
QSize NameLabel::sizeHint() const {
    ensurePolished();
    return isPlain() ? wholeSize().expandedTo(minimumSize()) : QLabel::sizeHint();
}

QSize NameLabel::minimumSizeHint() const {
    ensurePolished();
    return isPlain() ? wholeSize().expandedTo(minimumSize()) : QLabel::minimumSizeHint();
}

void NameLabel::setName(QString const& name) {
    // A row says it with everything that its parameter says about itself.
    if (name == name_)
        return;
    name_ = name;
    wholeSize_ = QSize();
    shortenTo(width_);
}

void NameLabel::shortenTo(int width) {
    width_ = width;
    showText(width < wholeWidth() ? fontMetrics().elidedText(name_, Qt::ElideMiddle, width) : name_);
}

void NameLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    wholeSize_ = QSize();
}

void NameLabel::showText(QString text) {
    // A label with a buddy takes an ampersand for the mark of a shortcut.
    setText(text.replace(QLatin1Char('&'), QLatin1String("&&")));
}

} // namespace Talo
