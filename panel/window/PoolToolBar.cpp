#include <panel/window/PoolToolBar.hpp>

#include <panel/window/CountTexts.hpp>
#include <parameters/rows/MutedLabel.hpp>
#include <QLayout>
#include <QSignalBlocker>
#include <QToolButton>

namespace Panel {

PoolToolBar::PoolToolBar(QWidget* parent)
    : QToolBar(tr("Pool and filter"), parent),
      selector_(new QComboBox),
      filterField_(new FilterField),
      found_(new Talo::MutedLabel) {
    setObjectName(QStringLiteral("pool"));
    setMovable(false);
    auto* const label = new QLabel(tr("P&ool:"));
    label->setContentsMargins(8, 0, 6, 0);
    label->setBuddy(selector_);
    addWidget(label);
    addWidget(selector_);
    selector_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    selector_->setMinimumContentsLength(12);
    selector_->setAccessibleName(tr("Pool"));
    selector_->setToolTip(tr("The pool whose values are edited"));
    auto* const gap = new QWidget;
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    addWidget(gap);
    addWidget(found_);
    found_->setObjectName(QStringLiteral("found"));
    found_->setContentsMargins(6, 0, 6, 0);
    addAction(filterField_->onlyChangedAction());
    widgetForAction(filterField_->onlyChangedAction())->setFocusPolicy(Qt::TabFocus);
    addWidget(filterField_);
    connect(filterField_->findAction(), &QAction::triggered, this, &PoolToolBar::find);
    connect(selector_, qOverload<int>(&QComboBox::currentIndexChanged), this, [this](int index) {
        if (index >= 0)
            emit poolChosen(index);
    });
}

PoolToolBar::~PoolToolBar() = default;

void PoolToolBar::find() {
    if (isHidden()) {
        show();
        window()->layout()->activate();
    }
    // What has no room is shown by a button. A field that is not seen must not take what is typed.
    auto* const more = findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
    if (!filterField_->isVisible() && more)
        more->click();
    if (!filterField_->isVisible())
        return;
    filterField_->setFocus(Qt::ShortcutFocusReason);
    filterField_->selectAll();
}

void PoolToolBar::showPools(Talo::Network const& network) {
    QSignalBlocker const blocker(selector_);
    selector_->clear();
    for (auto const& pool : network.pools())
        selector_->addItem(QString::fromStdString(pool->Name()));
}

void PoolToolBar::showFound(std::optional<ObjectModel::Total> const& found) {
    // A list of two counts, each a sentence part of its own.
    auto const text = [&] {
        return parameterCountText(found->parameters) + QStringLiteral(" · ") + objectCountText(found->objects);
    };
    found_->setText(found ? text() : QString());
}

bool PoolToolBar::choosePool(QString const& name) {
    int const index = selector_->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index >= 0)
        selector_->setCurrentIndex(index);
    return index >= 0;
}

} // namespace Panel
