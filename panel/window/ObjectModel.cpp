#include <panel/window/ObjectModel.hpp>

#include <algorithm>
#include <network/PlainText.hpp>
#include <panel/window/CountTexts.hpp>
#include <QCollator>
#include <QFont>
#include <QMetaEnum>

namespace Panel {

ObjectModel::ObjectModel(QObject* parent) : QAbstractItemModel(parent) {}

ObjectModel::~ObjectModel() = default;

QString ObjectModel::nameOf(Order order) {
    return QLatin1String(QMetaEnum::fromType<Order>().valueToKey(static_cast<int>(order)));
}

ObjectModel::Order ObjectModel::orderNamed(QByteArray const& name) {
    bool known = false;
    int const value = QMetaEnum::fromType<Order>().keyToValue(name.constData(), &known);
    return known ? Order(value) : Order::File;
}

void ObjectModel::showNetwork(Talo::Network const* network) {
    beginResetModel();
    rows_.clear();
    top_.clear();
    byName_.clear();
    isFiltered_ = false;
    if (network) {
        for (auto const& object : network->objects()) {
            Row row;
            row.name = QString::fromStdString(object->Name());
            row.kind = network->kind(object);
            row.object = object;
            row.fileOrder = rows_.size();
            if (!byName_.contains(row.name))
                byName_.insert(row.name, rows_.size());
            rows_.push_back(std::move(row));
        }
    }
    objectCount_ = rows_.size();
    makeGroups();
    arrange();
    endResetModel();
}

void ObjectModel::makeGroups() {
    QHash<QString, std::size_t> kinds;
    std::size_t withKind = 0;
    for (std::size_t id = 0; id < objectCount_; ++id) {
        auto const kind = rows_[id].kind;
        if (kind.isEmpty())
            continue;
        ++withKind;
        if (!kinds.contains(kind))
            kinds.insert(kind, objectCount_ + static_cast<std::size_t>(kinds.size()));
    }
    auto const kindCount = static_cast<std::size_t>(kinds.size());
    bool const isGrouped = kindCount > 1 && kindCount < withKind;
    rows_.resize(objectCount_ + (isGrouped ? kindCount : 0));
    for (std::size_t id = 0; id < objectCount_; ++id) {
        auto& object = rows_[id];
        if (!isGrouped || object.kind.isEmpty()) {
            top_.push_back(id);
            continue;
        }
        object.parent = kinds.value(object.kind);
        auto& kind = rows_[*object.parent];
        if (kind.children.empty()) {
            kind.name = object.kind;
            kind.kind = object.kind;
            kind.fileOrder = id;
            top_.push_back(*object.parent);
        }
        kind.children.push_back(id);
    }
}

void ObjectModel::arrange() {
    auto const byName = order_ == Order::Name ? &Row::name : nullptr;
    sortRows(top_, order_ == Order::Kind ? &Row::kind : byName);
    for (std::size_t id = objectCount_; id < rows_.size(); ++id)
        sortRows(rows_[id].children, byName);
}

void ObjectModel::sortRows(Ids& ids, QString Row::*text) {
    std::sort(ids.begin(), ids.end(),
              [this](auto left, auto right) { return rows_[left].fileOrder < rows_[right].fileOrder; });
    if (text) {
        QCollator collator;
        collator.setNumericMode(true);
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        // A key is compared faster than a text.
        std::vector<std::pair<QCollatorSortKey, std::size_t>> keyed;
        keyed.reserve(ids.size());
        for (auto const id : ids)
            keyed.emplace_back(collator.sortKey(rows_[id].*text), id);
        std::stable_sort(keyed.begin(), keyed.end(),
                         [](auto const& left, auto const& right) { return left.first < right.first; });
        std::transform(keyed.begin(), keyed.end(), ids.begin(), [](auto const& each) { return each.second; });
    }
    for (std::size_t row = 0; row < ids.size(); ++row)
        rows_[ids[row]].row = static_cast<int>(row);
}

void ObjectModel::setOrder(Order order) {
    if (order == order_)
        return;
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    auto const before = persistentIndexList();
    order_ = order;
    arrange();
    QModelIndexList after;
    after.reserve(before.size());
    for (auto const& index : before)
        after << indexOf(index.internalId(), index.column());
    changePersistentIndexList(before, after);
    emit layoutChanged({}, VerticalSortHint);
}

ObjectModel::Total ObjectModel::setFilter(Filter const& filter) {
    Total total;
    isFiltered_ = static_cast<bool>(filter);
    for (auto& row : rows_) {
        row.found = 0;
        row.isShown = !isFiltered_;
    }
    for (std::size_t id = 0; isFiltered_ && id < objectCount_; ++id) {
        auto& row = rows_[id];
        auto const object = row.object.strong();
        auto const found = object ? filter(*object, row.kind) : std::nullopt;
        if (!found)
            continue;
        row.isShown = true;
        row.found = *found;
        ++total.objects;
        total.parameters += *found;
        if (row.parent) {
            rows_[*row.parent].isShown = true;
            rows_[*row.parent].found += *found;
        }
    }
    // The numbers are drawn anew; nothing but the view asks for them.
    if (!top_.empty())
        emit dataChanged(indexOf(top_.front(), Found), indexOf(top_.back(), Found));
    return total;
}

Kolt::ObjectPtr ObjectModel::object(QModelIndex const& index) const {
    return index.isValid() ? rowOf(index).object.strong() : nullptr;
}

QModelIndex ObjectModel::find(QString const& objectName) const {
    auto const found = byName_.find(objectName);
    return found == byName_.end() ? QModelIndex() : indexOf(*found);
}

std::vector<QModelIndex> ObjectModel::allRows() const {
    std::vector<QModelIndex> all;
    all.reserve(rows_.size());
    for (auto const id : top_) {
        all.push_back(indexOf(id));
        for (auto const child : rows_[id].children)
            all.push_back(indexOf(child));
    }
    return all;
}

QModelIndex ObjectModel::index(int row, int column, QModelIndex const& parent) const {
    return hasIndex(row, column, parent) ? indexOf(children(parent)[static_cast<std::size_t>(row)], column)
                                         : QModelIndex();
}

QModelIndex ObjectModel::parent(QModelIndex const& index) const {
    return index.isValid() && rowOf(index).parent ? indexOf(*rowOf(index).parent) : QModelIndex();
}

int ObjectModel::rowCount(QModelIndex const& parent) const {
    return parent.column() > 0 ? 0 : static_cast<int>(children(parent).size());
}

int ObjectModel::columnCount(QModelIndex const&) const {
    return ColumnCount;
}

QVariant ObjectModel::data(QModelIndex const& index, int role) const {
    if (!index.isValid())
        return {};
    auto const& row = rowOf(index);
    bool const isFound = index.column() == Found && isFiltered_ && row.isShown;
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == Name ? row.name : isFound ? QString::number(row.found) : QVariant();
    case Qt::ToolTipRole:
        return index.column() == Name ? toolTip(index) : isFound ? parametersFoundText(row.found) : QVariant();
    case Qt::AccessibleTextRole:
        return isFound ? parametersFoundText(row.found) : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == Found ? QVariant(Qt::AlignTrailing | Qt::AlignVCenter) : QVariant();
    case Qt::FontRole: {
        QFont font;
        font.setBold(true);
        // Only the weight counts; the view has the rest.
        return isKind(index) ? QVariant(font) : QVariant();
    }
    default:
        return {};
    }
}

QString ObjectModel::toolTip(QModelIndex const& index) const {
    auto const& row = rowOf(index);
    if (isKind(index))
        return Talo::plainToolTip(row.name + QLatin1Char('\n') +
                                  objectCountText(static_cast<int>(row.children.size())));
    return Talo::plainToolTip(row.kind.isEmpty() ? row.name : row.name + QLatin1Char('\n') + row.kind);
}

QVariant ObjectModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Name:
        return tr("Object");
    case Found:
        return tr("Parameters found");
    case Icon:
        return tr("Value");
    default:
        return {};
    }
}

} // namespace Panel
