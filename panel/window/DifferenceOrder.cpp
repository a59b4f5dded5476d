#include <panel/window/DifferenceOrder.hpp>

namespace Panel {

DifferenceOrder::DifferenceOrder(QObject* parent) : QSortFilterProxyModel(parent) {
    collator_.setNumericMode(true);
    collator_.setCaseSensitivity(Qt::CaseInsensitive);
}

DifferenceOrder::~DifferenceOrder() = default;

bool DifferenceOrder::lessThan(QModelIndex const& left, QModelIndex const& right) const {
    auto const leftText = left.data().toString();
    auto const rightText = right.data().toString();
    bool leftIsNumber = false;
    bool rightIsNumber = false;
    double const leftNumber = leftText.toDouble(&leftIsNumber);
    double const rightNumber = rightText.toDouble(&rightIsNumber);
    // Numbers before texts, because an order must hold among all of them.
    if (leftIsNumber != rightIsNumber)
        return leftIsNumber;
    return leftIsNumber ? leftNumber < rightNumber : collator_.compare(leftText, rightText) < 0;
}

} // namespace Panel
