#include <panel/window/ComparisonDock.hpp>

#include <QAction>

namespace Panel {

ComparisonDock::ComparisonDock(QWidget* parent) : QDockWidget(tr("Compare pools"), parent), view_(new ComparisonView) {
    setObjectName(QStringLiteral("comparisonDock"));
    setWidget(view_);
    hide();
    toggleViewAction()->setObjectName(QStringLiteral("showComparison"));
    // A tab that is opened is wanted in front.
    connect(toggleViewAction(), &QAction::triggered, this, &QWidget::raise);
}

ComparisonDock::~ComparisonDock() = default;

} // namespace Panel
