#pragma once

#include <panel/window/KeyList.hpp>
#include <QDialog>
#include <QTableWidget>

namespace Panel {

/// Lists keys in a table, which can be copied as text. User-interface thread.
class KeysDialog : public QDialog {
    Q_OBJECT

public:
    explicit KeysDialog(QVector<KeyGroup> const& groups, QWidget* parent = nullptr);
    ~KeysDialog() override;

    /// The list as text: for each group its title and a line "command<Tab>keys" for each entry, and an empty line
    /// between groups.
    QString text() const;

private:
    void addRow(QString const& command, QString const& keys);
    void addTitle(QString const& title);

    QVector<KeyGroup> const groups_;
    QTableWidget* const table_;
};

} // namespace Panel
