#include <panel/window/ObjectList.hpp>

#include <memory>
#include <network/PlainText.hpp>
#include <panel/window/IconPlace.hpp>
#include <QEvent>

namespace Panel {

namespace {

// In pixels; an icon needs them.
constexpr int leastRowHeight = 34;

} // namespace

ObjectList::ObjectList(Kolt::ValuePoolSource& pools, QWidget* parent) : QTreeWidget(parent), iconMaker_(pools) {
    setHeaderHidden(true);
    // Nothing folds out; the indentation is the left margin.
    setItemsExpandable(false);
    setIndentation(10);
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(tr("Objects"));
    setTextElideMode(Qt::ElideRight);
    connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem const* item) {
        if (auto const object = objectOf(item))
            emit objectChosen(object);
    });
}

ObjectList::~ObjectList() = default;

void ObjectList::showNetwork(Talo::Network const* network) {
    closeIcons();
    clear();
    objects_.clear();
    if (!network)
        return;
    for (auto const& object : network->objects()) {
        auto* const item = new QTreeWidgetItem(this, {QString::fromStdString(object->Name())});
        item->setToolTip(0, Talo::plainToolTip(network->kind(object)));
        objects_.emplace_back(object);
    }
    setRowHeights();
    openIcons();
}

void ObjectList::setRowHeights() {
    // Room for an icon, also where there is none, so that the rows are even.
    int const height = qMax(leastRowHeight, 2 * fontMetrics().height());
    for (int index = 0; index < topLevelItemCount(); ++index)
        topLevelItem(index)->setSizeHint(0, {0, height});
}

void ObjectList::changeEvent(QEvent* event) {
    QTreeWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        setRowHeights();
}

bool ObjectList::chooseObject(QString const& name) {
    auto* const item = findItem(name);
    if (item)
        setCurrentItem(item);
    return item != nullptr;
}

QWidget* ObjectList::icon(QString const& name) {
    auto* const item = findItem(name);
    if (!item)
        return nullptr;
    makeIcon(item);
    auto const* const place = static_cast<IconPlace*>(itemWidget(item, 0));
    return place ? place->icon() : nullptr;
}

void ObjectList::setFilter(std::function<bool(Kolt::VObject const&)> const& filter) {
    QTreeWidgetItem* firstShown = nullptr;
    for (int index = 0; index < topLevelItemCount(); ++index) {
        auto* const item = topLevelItem(index);
        auto const object = objectOf(item);
        bool const shown = !filter || (object && filter(*object));
        item->setHidden(!shown);
        if (shown && !firstShown)
            firstShown = item;
    }
    if (firstShown && (!currentItem() || currentItem()->isHidden()))
        setCurrentItem(firstShown);
    makeVisibleIcons();
}

void ObjectList::openIcons() {
    iconsOpen_ = true;
    makeVisibleIcons();
}

void ObjectList::makeVisibleIcons() {
    if (!isVisible())
        return;
    for (auto* item = itemAt(0, 0); item && visualItemRect(item).top() < viewport()->height(); item = itemBelow(item))
        makeIcon(item);
}

void ObjectList::makeIcon(QTreeWidgetItem* item) {
    auto const object = objectOf(item);
    if (!iconsOpen_ || !object || itemWidget(item, 0))
        return;
    auto place = std::make_unique<IconPlace>();
    auto* const icon = iconMaker_.makeIcon(object, place.get());
    if (!icon)
        return;
    icon->setAccessibleName(item->text(0));
    // Readable on a chosen row, too.
    icon->setAutoFillBackground(true);
    place->setIcon(icon);
    setItemWidget(item, 0, place.release());
}

void ObjectList::closeIcons() {
    iconsOpen_ = false;
    for (int index = 0; index < topLevelItemCount(); ++index) {
        // The view deletes the widget as soon as Qt is done with it.
        if (auto* const place = itemWidget(topLevelItem(index), 0)) {
            place->hide();
            removeItemWidget(topLevelItem(index), 0);
        }
    }
}

void ObjectList::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    makeVisibleIcons();
}

void ObjectList::showEvent(QShowEvent* event) {
    QTreeWidget::showEvent(event);
    makeVisibleIcons();
}

void ObjectList::scrollContentsBy(int dx, int dy) {
    QTreeWidget::scrollContentsBy(dx, dy);
    makeVisibleIcons();
}

QTreeWidgetItem* ObjectList::findItem(QString const& name) const {
    auto const items = findItems(name, Qt::MatchExactly | Qt::MatchCaseSensitive, 0);
    return items.isEmpty() ? nullptr : items.constFirst();
}

Kolt::ObjectPtr ObjectList::objectOf(QTreeWidgetItem const* item) const {
    auto const index = indexOfTopLevelItem(const_cast<QTreeWidgetItem*>(item));
    return index < 0 ? nullptr : objects_.at(static_cast<std::size_t>(index)).strong();
}

} // namespace Panel
