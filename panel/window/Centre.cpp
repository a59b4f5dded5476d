#include <panel/window/Centre.hpp>

#include <panel/window/NoticeBar.hpp>
#include <QEvent>
#include <QSplitter>
#include <QVBoxLayout>

namespace Panel {

namespace {

// In characters.
constexpr int usualNarrowWidth = 34;
constexpr int leastNarrowWidth = 18;

} // namespace

Centre::Centre(NoticeBar* notices, QWidget* narrowColumn, QWidget* wideColumn)
    : narrowColumn_(narrowColumn),
      columns_(new QSplitter),
      narrowWidth_(usualNarrowWidth),
      characterWidth_(fontMetrics().averageCharWidth()) {
    // The session knows it by this name.
    columns_->setObjectName(QStringLiteral("columns"));
    columns_->addWidget(narrowColumn);
    columns_->addWidget(wideColumn);
    columns_->setStretchFactor(1, 1);
    int const usual = qRound(narrowWidth_ * characterWidth_);
    columns_->setSizes({usual, 3 * usual});
    columns_->setChildrenCollapsible(false);
    setLeastWidth();

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(notices);
    layout->addWidget(columns_, 1);
}

Centre::~Centre() = default;

void Centre::setLeastWidth() {
    narrowColumn_->setMinimumWidth(leastNarrowWidth * fontMetrics().averageCharWidth());
}

void Centre::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        followFont();
}

void Centre::followFont() {
    auto const sizes = columns_->sizes();
    // Moved by the user, or restored.
    if (sizes.front() != qRound(narrowWidth_ * characterWidth_))
        narrowWidth_ = static_cast<double>(sizes.front()) / characterWidth_;
    characterWidth_ = fontMetrics().averageCharWidth();
    setLeastWidth();
    int const narrow = qRound(narrowWidth_ * characterWidth_);
    columns_->setSizes({narrow, sizes.front() + sizes.back() - narrow});
}

} // namespace Panel
