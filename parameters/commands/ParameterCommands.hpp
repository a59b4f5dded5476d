#pragma once

#include <memory>
#include <parameters/input/InputFilter.hpp>
#include <parameters/rows/ParameterRow.hpp>
#include <QAction>
#include <QObject>
#include <QPointer>
#include <tessera/Export.hpp>

namespace Talo {

/// The commands for the value of one parameter as actions with shortcuts, for a menu or a panel. They act on the row
/// that has the focus, or had it before a menu took it. User-interface thread.
class TALO_EXPORT ParameterCommands : public QObject {
    Q_OBJECT

public:
    /// For the rows in `scope`, its docks and dialogs included, which must outlive the commands; null: all rows.
    explicit ParameterCommands(QWidget* scope, QObject* parent = nullptr);
    ~ParameterCommands() override;

    /// In the order in which a menu shows them.
    QList<QAction*> const& actions() const { return actions_; }
    /// The action with this object name ("resetValue", "copyValue", "pasteValue", "setAsDefault", "showHelp"); null for
    /// any other.
    QAction* action(char const* objectName) const;
    /// The row on which the actions act; null for none.
    ParameterRow* row() const { return row_; }
    /// Enables the actions as the current row permits, as before a menu with them is shown.
    void updateActions();

private:
    /// Gives the actions their texts and keys, which depend on the language.
    void nameActions();
    void focusChanged(QWidget* widget);

    std::shared_ptr<InputFilter> const filter_;
    QWidget* const scope_;
    QList<QAction*> actions_;
    QPointer<ParameterRow> row_;
};

} // namespace Talo
