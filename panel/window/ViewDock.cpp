#include <panel/window/ViewDock.hpp>

#include <algorithm>

namespace Panel {

ViewDock::ViewDock(std::vector<Kolt::PoolPtr> pools, Kolt::ValuePoolSource& windowPools, QWidget* parent)
    : QDockWidget(parent),
      offered_(std::move(pools)),
      windowPools_(windowPools),
      source_(windowPools_.pool()),
      selector_(new QComboBox) {
    setAttribute(Qt::WA_DeleteOnClose);
    selector_->setObjectName(QStringLiteral("viewPool"));
    selector_->setAccessibleName(tr("Pool of this view"));
    selector_->setToolTip(tr("The pool whose values this view shows and edits"));
    selector_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    selector_->addItem(tr("Pool of the window"));
    for (auto const& pool : offered_)
        selector_->addItem(QString::fromStdString(pool->Name()));
    connect(selector_, qOverload<int>(&QComboBox::currentIndexChanged), this, &ViewDock::choose);
}

ViewDock::~ViewDock() {
    // Before the pool source: an editor may write when it is deleted.
    delete view_;
}

void ViewDock::setView(ObjectView* view) {
    view_ = view;
    view->addToHead(selector_);
    setWidget(view);
    showTitle();
}

void ViewDock::setOwnPool(Kolt::PoolPtr const& pool) {
    auto const found = std::find(offered_.begin(), offered_.end(), pool);
    selector_->setCurrentIndex(found == offered_.end() ? 0 : static_cast<int>(found - offered_.begin()) + 1);
}

void ViewDock::choose(int entry) {
    ownPool_ = entry > 0 ? offered_.at(static_cast<std::size_t>(entry) - 1) : nullptr;
    showTitle();
    showPool(ownPool_ ? ownPool_ : windowPools_.pool());
}

void ViewDock::followWindow() {
    if (!ownPool_)
        showPool(windowPools_.pool());
}

void ViewDock::showPool(Kolt::PoolPtr const& pool) {
    source_.setPool(pool);
    if (view_)
        view_->panel()->showPool();
}

void ViewDock::showTitle() {
    auto const object = view_ ? view_->object() : nullptr;
    if (!object)
        return;
    auto const name = QString::fromStdString(object->Name());
    setWindowTitle(ownPool_ ? tr("%1 in pool %2").arg(name, QString::fromStdString(ownPool_->Name())) : name);
}

} // namespace Panel
