#include <parameters/rows/NameLabel.hpp>

#include <parameters/rows/MutedLabel.hpp>

namespace Talo {

NameLabel::NameLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    alignWithLayout(*this);
}

NameLabel::~NameLabel() = default;

int NameLabel::wholeWidth() const {
    if (wholeWidth_ < 0)
        wholeWidth_ = fontMetrics().size(Qt::TextSingleLine, name_).width();
    return wholeWidth_;
}

void NameLabel::setName(QString const& name) {
    // A row says it with everything that its parameter says about itself.
    if (name == name_)
        return;
    name_ = name;
    wholeWidth_ = -1;
    shortenTo(width_);
}

void NameLabel::shortenTo(int width) {
    width_ = width;
    showText(width < wholeWidth() ? fontMetrics().elidedText(name_, Qt::ElideMiddle, width) : name_);
}

void NameLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    wholeWidth_ = -1;
}

void NameLabel::showText(QString text) {
    // A label with a buddy takes an ampersand for the mark of a shortcut.
    setText(text.replace(QLatin1Char('&'), QLatin1String("&&")));
}

} // namespace Talo
