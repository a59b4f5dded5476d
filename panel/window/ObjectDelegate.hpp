#pragma once

#include <QStyledItemDelegate>

namespace Panel {

/// Draws the rows of the list of objects: all of one height, with room for an icon, and the numbers of the filter
/// muted. User-interface thread.
class ObjectDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit ObjectDelegate(QObject* parent = nullptr);
    ~ObjectDelegate() override;

    QSize sizeHint(QStyleOptionViewItem const& option, QModelIndex const& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, QModelIndex const& index) const override;
};

} // namespace Panel
