#include <panel/window/ObjectList.hpp>

#include <algorithm>
#include <panel/window/IconPlace.hpp>
#include <panel/window/ObjectDelegate.hpp>
#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QSet>
#include <QToolTip>

namespace Panel {

namespace {

/// For comparisons: of two rows, which is the upper one.
std::pair<int, int> placeOf(QModelIndex const& index) {
    auto const parent = index.parent();
    return parent.isValid() ? std::pair(parent.row(), index.row()) : std::pair(index.row(), -1);
}

} // namespace

ObjectList::ObjectList(Kolt::ValuePoolSource& pools, QWidget* parent)
    : QTreeView(parent), model_(new ObjectModel(this)), pools_(pools), iconMaker_(pools) {
    setModel(model_);
    setItemDelegate(new ObjectDelegate(this));
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(tr("Objects"));
    setTextElideMode(Qt::ElideRight);
    header()->setStretchLastSection(false);
    // Columns are as narrow as what they show.
    header()->setMinimumSectionSize(0);
    header()->setSectionResizeMode(QHeaderView::Fixed);
    header()->setSectionResizeMode(ObjectModel::Name, QHeaderView::Stretch);
    setColumns();
    // Later, when the rows have their places.
    connect(this, &QTreeView::expanded, this, &ObjectList::makeVisibleIcons, Qt::QueuedConnection);
    connect(this, &QTreeView::collapsed, this, &ObjectList::makeVisibleIcons, Qt::QueuedConnection);
}

ObjectList::~ObjectList() = default;

void ObjectList::showNetwork(Talo::Network const* network) {
    closeIcons();
    chosen_.clear();
    current_ = QModelIndex();
    iconWidth_ = 0;
    largestCount_.reset();
    model_->showNetwork(network);
    // Without kinds nothing folds out; the indentation is the left margin.
    setItemsExpandable(model_->hasKinds());
    setColumns();
    setFoldedKinds({});
    if (network)
        openIcons();
}

void ObjectList::setColumns() {
    if (model_->hasKinds())
        resetIndentation();
    else
        setIndentation(style()->pixelMetric(QStyle::PM_LayoutLeftMargin, nullptr, this));
    auto bold = font();
    bold.setBold(true);
    int const margins = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1);
    setColumnWidth(ObjectModel::Found,
                   QFontMetrics(bold).horizontalAdvance(QString::number(largestCount_.value_or(0))) + margins);
    setColumnHidden(ObjectModel::Found, !largestCount_);
    setColumnWidth(ObjectModel::Icon, iconWidth_);
    setColumnHidden(ObjectModel::Icon, iconWidth_ == 0);
}

void ObjectList::changeEvent(QEvent* event) {
    QTreeView::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange)
        return;
    bool const wereOpen = iconsOpen_;
    closeIcons();
    iconWidth_ = 0;
    setColumns();
    if (wereOpen)
        openIcons();
}

bool ObjectList::chooseObject(QString const& name) {
    auto const index = model_->find(name);
    if (index.isValid())
        chooseRow(index);
    return index.isValid();
}

void ObjectList::chooseRow(QModelIndex const& index) {
    // Whatever keys are pressed, as at a shortcut, Ctrl does not add to what is chosen.
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

std::vector<Kolt::ObjectPtr> ObjectList::chosenObjects() const {
    std::vector<Kolt::ObjectPtr> objects;
    objects.reserve(chosen_.size());
    for (auto const& index : chosen_)
        if (auto const object = model_->object(index))
            objects.push_back(object);
    return objects;
}

void ObjectList::selectionChanged(QItemSelection const& selected, QItemSelection const& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    auto const rows = [this](QItemSelection const& selection) {
        auto indexes = selection.indexes();
        indexes.erase(std::remove_if(indexes.begin(), indexes.end(),
                                     [this](auto const& index) {
                                         return index.column() != ObjectModel::Name || model_->isKind(index);
                                     }),
                      indexes.end());
        // Qt has the ranges of each kind in an order of its own.
        std::sort(indexes.begin(), indexes.end(),
                  [](auto const& left, auto const& right) { return placeOf(left) < placeOf(right); });
        return indexes;
    };
    auto const lost = rows(deselected);
    QSet<QModelIndex> const gone(lost.begin(), lost.end());
    chosen_.erase(
        std::remove_if(chosen_.begin(), chosen_.end(), [&](auto const& index) { return gone.contains(index); }),
        chosen_.end());
    auto const added = rows(selected);
    for (auto const& index : added)
        chosen_.emplace_back(index);
    // A kind that is chosen alone leaves the object that is shown.
    if (chosen_.empty())
        return;
    if (current_ != chosen_.front()) {
        current_ = chosen_.front();
        if (auto const object = model_->object(current_))
            emit objectChosen(object);
    }
    emit objectsChosen(chosenObjects());
}

QWidget* ObjectList::icon(QString const& name) {
    auto const index = model_->find(name);
    if (!index.isValid())
        return nullptr;
    makeIcon(index);
    auto const place = icons_.value(index.internalId());
    return place ? place->icon() : nullptr;
}

ObjectModel::Total ObjectList::setFilter(ObjectModel::Filter const& filter) {
    auto const total = model_->setFilter(filter);
    largestCount_ = filter ? std::optional(total.parameters) : std::nullopt;
    setColumns();
    repairChoice(hideRows());
    makeVisibleIcons();
    return total;
}

QModelIndex ObjectList::hideRows() {
    QModelIndex firstShown;
    for (auto const& index : model_->allRows()) {
        bool const isShown = model_->isShown(index);
        if (isShown && !firstShown.isValid() && !model_->isKind(index))
            firstShown = index;
        if (isRowHidden(index.row(), index.parent()) == isShown)
            setRowHidden(index.row(), index.parent(), !isShown);
    }
    return firstShown;
}

void ObjectList::repairChoice(QModelIndex const& firstShown) {
    if (firstShown.isValid() && (!current_.isValid() || !model_->isShown(current_))) {
        chooseRow(firstShown);
        return;
    }
    QItemSelection hidden;
    for (auto const& index : chosen_)
        if (!model_->isShown(index) && index != current_)
            hidden.select(index, index);
    if (!hidden.isEmpty())
        selectionModel()->select(hidden, QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
}

void ObjectList::setOrder(ObjectModel::Order order) {
    if (order == model_->order())
        return;
    model_->setOrder(order);
    if (current_.isValid())
        scrollTo(current_);
    makeVisibleIcons();
    emit orderChanged(order);
}

QStringList ObjectList::foldedKinds() const {
    QStringList folded;
    for (int row = 0; row < model_->rowCount(); ++row) {
        auto const index = model_->index(row, ObjectModel::Name);
        if (model_->isKind(index) && !isExpanded(index))
            folded << index.data().toString();
    }
    return folded;
}

void ObjectList::setFoldedKinds(QStringList const& kinds) {
    QSet<QString> const folded(kinds.begin(), kinds.end());
    // One layout for all of them.
    scheduleDelayedItemsLayout();
    for (int row = 0; row < model_->rowCount(); ++row) {
        auto const index = model_->index(row, ObjectModel::Name);
        if (model_->isKind(index))
            setExpanded(index, !folded.contains(index.data().toString()));
    }
}

void ObjectList::keyboardSearch(QString const& typed) {
    bool const goesOn = sinceTyped_.isValid() && !sinceTyped_.hasExpired(QApplication::keyboardInputInterval());
    sinceTyped_.start();
    typed_ = goesOn ? typed_ + typed : typed;
    // The same letter again goes to the next object that begins with it.
    if (typed_.isEmpty())
        return;
    auto const first = typed_.at(0);
    bool const isRepeated = typed_.count(first, Qt::CaseInsensitive) == typed_.size();
    auto const wanted = isRepeated ? QString(first) : typed_;
    auto rows = model_->allRows();
    auto const here = std::find(rows.begin(), rows.end(), currentIndex().siblingAtColumn(ObjectModel::Name));
    if (here != rows.end())
        std::rotate(rows.begin(), goesOn && !isRepeated ? here : here + 1, rows.end());
    auto const found = std::find_if(rows.begin(), rows.end(), [&](auto const& index) {
        return !model_->isKind(index) && model_->isShown(index) &&
               index.data().toString().startsWith(wanted, Qt::CaseInsensitive);
    });
    if (found != rows.end())
        chooseRow(*found);
}

void ObjectList::openIcons() {
    iconsOpen_ = true;
    makeVisibleIcons();
}

void ObjectList::makeVisibleIcons() {
    if (!isVisible() || !iconsOpen_)
        return;
    auto unseen = std::exchange(icons_, {});
    for (auto index = indexAt({0, 0}).siblingAtColumn(ObjectModel::Name);
         index.isValid() && visualRect(index).top() < viewport()->height(); index = indexBelow(index)) {
        auto const id = index.internalId();
        if (unseen.contains(id))
            icons_.insert(id, unseen.take(id));
        else
            makeIcon(index);
    }
    for (auto icon = unseen.begin(); icon != unseen.end(); ++icon)
        deleteIcon(icon.key(), icon.value());
}

void ObjectList::makeIcon(QModelIndex const& index) {
    auto const object = model_->object(index);
    if (!iconsOpen_ || !object || icons_.contains(index.internalId()))
        return;
    auto place = std::make_unique<IconPlace>(this);
    auto const made = iconMaker_.makeIcon(object, place.get());
    // Also what has no icon is remembered, because it is not asked twice.
    icons_.insert(index.internalId(), made.widget ? place.get() : nullptr);
    if (!made.widget)
        return;
    made.widget->setAccessibleName(index.data().toString());
    // Readable on a chosen row, too.
    made.widget->setAutoFillBackground(true);
    place->setIcon(made.widget, made.parameter);
    if (place->sizeHint().width() > iconWidth_) {
        iconWidth_ = place->sizeHint().width();
        setColumns();
    }
    setIndexWidget(index.siblingAtColumn(ObjectModel::Icon), place.release());
}

void ObjectList::deleteIcon(quintptr rowId, QPointer<IconPlace> const& place) {
    if (!place)
        return;
    // The view deletes the widget as soon as Qt is done with it.
    place->hide();
    setIndexWidget(model_->withId(rowId).siblingAtColumn(ObjectModel::Icon), nullptr);
}

void ObjectList::closeIcons() {
    iconsOpen_ = false;
    auto const icons = std::exchange(icons_, {});
    for (auto icon = icons.begin(); icon != icons.end(); ++icon)
        deleteIcon(icon.key(), icon.value());
}

bool ObjectList::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        auto const* const help = static_cast<QHelpEvent*>(event);
        auto const index = indexAt(help->pos());
        auto const place = index.isValid() ? icons_.value(index.internalId()) : nullptr;
        if (place && index.column() == ObjectModel::Icon) {
            QToolTip::showText(help->globalPos(), place->valueText(Kolt::currentPool(&pools_)), viewport());
            return true;
        }
    }
    return QTreeView::viewportEvent(event);
}

void ObjectList::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    makeVisibleIcons();
}

void ObjectList::showEvent(QShowEvent* event) {
    QTreeView::showEvent(event);
    makeVisibleIcons();
}

void ObjectList::scrollContentsBy(int dx, int dy) {
    QTreeView::scrollContentsBy(dx, dy);
    makeVisibleIcons();
}

} // namespace Panel
