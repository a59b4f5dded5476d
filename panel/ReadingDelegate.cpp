#include <panel/ReadingDelegate.hpp>
#include <QStyle>

namespace Panel {

ReadingDelegate::ReadingDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

ReadingDelegate::~ReadingDelegate() = default;

void ReadingDelegate::initStyleOption(QStyleOptionViewItem* option, QModelIndex const& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->displayAlignment = QStyle::visualAlignment(option->direction, option->displayAlignment) | Qt::AlignAbsolute;
    option->direction = option->text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

} // namespace Panel
