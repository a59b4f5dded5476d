#include <panel/window/ViewMenu.hpp>

#include <panel/window/ViewPoolMenu.hpp>
#include <panel/window/ViewStack.hpp>

namespace Panel {

ViewMenu::ViewMenu(ViewStack& views, QList<QAction*> const& parts, QWidget* parent)
    : QMenu(tr("&View"), parent),
      rawValues_(new QAction(tr("&Raw values"), this)),
      advanced_(new QAction(tr("&Advanced parameters"), this)),
      look_(new LookMenu(this)) {
    addAction(tr("&New view"), &views, &ViewStack::addView, QKeySequence(tr("Ctrl+N")));
    addMenu(new ViewPoolMenu(views, this));
    addSeparator();
    rawValues_->setObjectName(QStringLiteral("rawValues"));
    rawValues_->setCheckable(true);
    rawValues_->setShortcut(tr("Ctrl+R"));
    advanced_->setObjectName(QStringLiteral("advanced"));
    advanced_->setCheckable(true);
    advanced_->setShortcut(tr("Ctrl+Shift+A"));
    addActions({advanced_, rawValues_});
    addSeparator();
    addAction(tr("&Fold all sections"), this, [&views] {
        views.foldAllSections(true);
    })->setObjectName(QStringLiteral("foldAll"));
    addAction(tr("&Open all sections"), this, [&views] {
        views.foldAllSections(false);
    })->setObjectName(QStringLiteral("openAll"));
    addSeparator();
    addMenu(look_->colours());
    addMenu(look_->textSizes());
    addSeparator();
    addActions(parts);
    connect(rawValues_, &QAction::toggled, &views, &ViewStack::setRawValuesShown);
    connect(advanced_, &QAction::toggled, &views, &ViewStack::setAdvancedShown);
}

ViewMenu::~ViewMenu() = default;

} // namespace Panel
