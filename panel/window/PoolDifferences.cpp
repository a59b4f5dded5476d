#include <panel/window/PoolDifferences.hpp>

#include <network/PlainText.hpp>
#include <parameters/rows/ParameterDescription.hpp>

namespace Panel {

namespace {

/// A text that stays in one cell of what is copied.
QString cellText(QString text) {
    return text.replace(QLatin1Char('\\'), QLatin1String("\\\\"))
        .replace(QLatin1Char('\n'), QLatin1String("\\n"))
        .replace(QLatin1Char('\t'), QLatin1String("\\t"));
}

} // namespace

PoolDifferences::PoolDifferences(QObject* parent) : QAbstractTableModel(parent) {}

PoolDifferences::~PoolDifferences() = default;

void PoolDifferences::compare(Talo::Network const* network, Kolt::PoolPtr const& first, Kolt::PoolPtr const& second) {
    beginResetModel();
    differences_.clear();
    if (network && first && second) {
        pools_[0] = QString::fromStdString(first->Name());
        pools_[1] = QString::fromStdString(second->Name());
        for (auto const& object : network->objects()) {
            for (auto const& parameter : object->parameters()) {
                auto const left = parameter->effectiveValue(first);
                auto const right = parameter->effectiveValue(second);
                if (left == right || !parameter->isEdited() || left->equals(*right))
                    continue;
                differences_.push_back(
                    {{QString::fromStdString(object->Name()), QString::fromStdString(parameter->Name()),
                      QString::fromStdString(left->Text()), QString::fromStdString(right->Text())},
                     Talo::ParameterDescription(*parameter).label});
            }
        }
    }
    endResetModel();
}

QString PoolDifferences::rowText(int row) const {
    QStringList cells;
    for (auto const& text : differences_.at(static_cast<std::size_t>(row)).texts)
        cells << cellText(text);
    return cells.join(QLatin1Char('\t'));
}

QString PoolDifferences::headerText() const {
    QStringList cells;
    for (int column = 0; column < ColumnCount; ++column)
        cells << cellText(headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    return cells.join(QLatin1Char('\t'));
}

int PoolDifferences::rowCount(QModelIndex const& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(differences_.size());
}

int PoolDifferences::columnCount(QModelIndex const& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PoolDifferences::data(QModelIndex const& index, int role) const {
    if (!index.isValid())
        return {};
    auto const& difference = differences_.at(static_cast<std::size_t>(index.row()));
    auto const& text = difference.texts[index.column()];
    if (role == Qt::ToolTipRole)
        return Talo::plainToolTip(index.column() == Parameter ? difference.label : text);
    // A value of many lines has one line in the table.
    return role == Qt::DisplayRole ? QVariant(index.column() < First ? text : cellText(text)) : QVariant();
}

QVariant PoolDifferences::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Object:
        return tr("Object");
    case Parameter:
        return tr("Parameter");
    case First:
    case Second:
        return tr("In pool %1").arg(pools_[section - First]);
    default:
        return {};
    }
}

} // namespace Panel
