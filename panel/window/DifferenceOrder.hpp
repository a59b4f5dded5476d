#pragma once

#include <QCollator>
#include <QSortFilterProxyModel>

namespace Panel {

/// Sorts texts as people do: numbers by their values, other texts as the language has them, in capitals or not.
/// User-interface thread.
class DifferenceOrder : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit DifferenceOrder(QObject* parent = nullptr);
    ~DifferenceOrder() override;

protected:
    bool lessThan(QModelIndex const& left, QModelIndex const& right) const override;

private:
    QCollator collator_;
};

} // namespace Panel
