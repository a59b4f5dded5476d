#include <panel/window/Centre.hpp>

#include <panel/window/NoticeBar.hpp>
#include <QSplitter>
#include <QVBoxLayout>

namespace Panel {

Centre::Centre(NoticeBar* notices, QWidget* narrowColumn, QWidget* wideColumn) {
    auto* const columns = new QSplitter;
    // The session knows it by this name.
    columns->setObjectName(QStringLiteral("columns"));
    columns->addWidget(narrowColumn);
    columns->addWidget(wideColumn);
    columns->setStretchFactor(1, 1);
    columns->setSizes({220, 780});
    columns->setChildrenCollapsible(false);
    narrowColumn->setMinimumWidth(150);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(notices);
    layout->addWidget(columns, 1);
}

Centre::~Centre() = default;

} // namespace Panel
