#include <panel/window/ObjectDelegate.hpp>

#include <panel/window/ObjectModel.hpp>
#include <parameters/rows/MutedLabel.hpp>

namespace Panel {

namespace {

// In pixels; an icon needs them.
constexpr int leastRowHeight = 34;

} // namespace

ObjectDelegate::ObjectDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

ObjectDelegate::~ObjectDelegate() = default;

QSize ObjectDelegate::sizeHint(QStyleOptionViewItem const& option, QModelIndex const& index) const {
    // Room for an icon, also where there is none, so that the rows are even.
    return {QStyledItemDelegate::sizeHint(option, index).width(),
            qMax(leastRowHeight, 2 * option.fontMetrics.height())};
}

void ObjectDelegate::initStyleOption(QStyleOptionViewItem* option, QModelIndex const& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.column() == ObjectModel::Found)
        option->palette.setColor(QPalette::Text, Talo::mutedText(option->palette));
}

} // namespace Panel
