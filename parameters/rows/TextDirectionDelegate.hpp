#pragma once

#include <QStyledItemDelegate>
#include <tessera/Export.hpp>

namespace Talo {

/// Draws each text of a list in the direction of its own script, at the side where lines begin in the layout. A view by
/// itself takes the direction of the layout, so that the full stop of an English sentence would stand before its first
/// word in a panel from right to left.
class TALO_EXPORT TextDirectionDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    /// A delegate for any list or combo box.
    explicit TextDirectionDelegate(QObject* parent = nullptr);
    ~TextDirectionDelegate() override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, QModelIndex const& index) const override;
};

} // namespace Talo
