#include <panel/window/Centre.hpp>

#include <panel/window/NoticeBar.hpp>
#include <QEvent>
#include <QSplitter>
#include <QVBoxLayout>

namespace Panel {

namespace {

// In characters.
constexpr int usualNarrowWidth = 28;
constexpr int leastNarrowWidth = 18;

} // namespace

Centre::Centre(NoticeBar* notices, QWidget* narrowColumn, QWidget* wideColumn) : narrowColumn_(narrowColumn) {
    auto* const columns = new QSplitter;
    // The session knows it by this name.
    columns->setObjectName(QStringLiteral("columns"));
    columns->addWidget(narrowColumn);
    columns->addWidget(wideColumn);
    columns->setStretchFactor(1, 1);
    int const usual = usualNarrowWidth * fontMetrics().averageCharWidth();
    columns->setSizes({usual, 3 * usual});
    columns->setChildrenCollapsible(false);
    setLeastWidth();

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(notices);
    layout->addWidget(columns, 1);
}

Centre::~Centre() = default;

void Centre::setLeastWidth() {
    narrowColumn_->setMinimumWidth(leastNarrowWidth * fontMetrics().averageCharWidth());
}

void Centre::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        setLeastWidth();
}

} // namespace Panel
