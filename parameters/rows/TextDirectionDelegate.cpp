#include <parameters/rows/TextDirectionDelegate.hpp>

#include <QStyle>

namespace Talo {

TextDirectionDelegate::TextDirectionDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

TextDirectionDelegate::~TextDirectionDelegate() = default;

void TextDirectionDelegate::initStyleOption(QStyleOptionViewItem* option, QModelIndex const& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->displayAlignment = QStyle::visualAlignment(option->direction, option->displayAlignment) | Qt::AlignAbsolute;
    option->direction = option->text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

} // namespace Talo
