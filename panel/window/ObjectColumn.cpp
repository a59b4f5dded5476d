#include <panel/window/ObjectColumn.hpp>

#include <panel/window/ObjectList.hpp>
#include <QActionGroup>
#include <QMenu>
#include <QVBoxLayout>

namespace Panel {

ObjectColumn::ObjectColumn(ObjectList* list, QWidget* parent) : QWidget(parent), list_(list), button_(new QPushButton) {
    button_->setObjectName(QStringLiteral("objectOrder"));
    button_->setFlat(true);
    button_->setAccessibleName(tr("Order of the objects"));
    button_->setToolTip(tr("The order in which the objects are listed"));
    auto* const menu = new QMenu(button_);
    button_->setMenu(menu);
    new QActionGroup(menu);
    addOrder(ObjectModel::Order::File, "orderFile", tr("In &file order"));
    addOrder(ObjectModel::Order::Name, "orderName", tr("By &name"));
    addOrder(ObjectModel::Order::Kind, "orderKind", tr("By &kind"));
    connect(list_, &ObjectList::orderChanged, this, &ObjectColumn::showOrder);
    showOrder(list_->order());

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(button_, 0, Qt::AlignLeading);
    layout->addWidget(list_, 1);
}

ObjectColumn::~ObjectColumn() = default;

void ObjectColumn::addOrder(ObjectModel::Order order, char const* name, QString const& text) {
    auto* const action = button_->menu()->addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setCheckable(true);
    action->setData(QVariant::fromValue(order));
    action->setActionGroup(button_->menu()->findChild<QActionGroup*>());
    connect(action, &QAction::triggered, list_, [list = list_, order] { list->setOrder(order); });
}

void ObjectColumn::showOrder(ObjectModel::Order order) {
    auto const actions = button_->menu()->actions();
    for (auto* const action : actions) {
        if (action->data().value<ObjectModel::Order>() != order)
            continue;
        action->setChecked(true);
        button_->setText(action->text().remove(QLatin1Char('&')));
    }
}

} // namespace Panel
