#include <panel/window/ViewPoolMenu.hpp>

#include <panel/window/ViewStack.hpp>

namespace Panel {

ViewPoolMenu::ViewPoolMenu(ViewStack& views, QWidget* parent) : QMenu(tr("New view on &pool"), parent), views_(views) {
    setObjectName(QStringLiteral("viewPoolMenu"));
    connect(this, &QMenu::aboutToShow, this, &ViewPoolMenu::showPools);
}

ViewPoolMenu::~ViewPoolMenu() = default;

void ViewPoolMenu::showPools() {
    clear();
    for (auto const& pool : views_.pools()) {
        // The name itself has no mnemonics.
        auto const name = QString::fromStdString(pool->Name()).replace(QLatin1Char('&'), QLatin1String("&&"));
        auto* const action = addAction(name, this, [this, pool] { views_.addViewOn(pool); });
        action->setEnabled(views_.currentView() != nullptr);
    }
}

} // namespace Panel
