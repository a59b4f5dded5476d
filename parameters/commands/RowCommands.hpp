#pragma once

#include <lattice/Parameter.hpp>
#include <QKeySequence>
#include <QString>
#include <tessera/Export.hpp>

class QMenu;

namespace Talo {

class ParameterRow;

/// A command for the value of one parameter, as menus show it.
struct TALO_EXPORT RowCommand {
    char const* name; ///< the object name of its actions: "resetValue"
    QString text;     ///< with the mark of its key
    /// The key that runs the command; may be empty.
    QKeySequence shortcut;
    /// Runs the command for a row.
    void (ParameterRow::*run)();
    /// Whether the command makes sense for a parameter.
    bool (*isPossible)(Kolt::VParameter const& parameter);

    /// Whether the command can be run for a row's parameter, which may be null.
    bool isEnabledFor(Kolt::ParameterPtr const& parameter) const;
};

/// All commands for a value, in the order in which menus show them. In the language of the translations in force.
TALO_EXPORT std::vector<RowCommand> rowCommands();

/// A context menu for a row with these commands. It belongs to the row.
TALO_EXPORT QMenu* makeRowMenu(ParameterRow& row);

/// Makes the default effective in a pool, as an undo step of the parameter's history. False if there is no default, or
/// no place for it.
[[nodiscard]] TALO_EXPORT bool resetToDefault(Kolt::ParameterPtr const& parameter, Kolt::PoolPtr const& pool);

/// Puts what the parameter holds in the pool on the clipboard (ValueClipboard).
TALO_EXPORT void copyValue(Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool);

/// Why a read-only parameter keeps its value, a sentence.
QString unchangeableText(QString const& parameterName);

/// Makes the value on the clipboard effective in the pool, as an undo step. Returns the reason if it cannot be done, a
/// sentence, else an empty text.
[[nodiscard]] TALO_EXPORT QString pasteValue(Kolt::ParameterPtr const& parameter, Kolt::PoolPtr const& pool);

/// Puts what the parameters hold in the pool on the clipboard, together.
TALO_EXPORT void copyValues(std::vector<Kolt::ParameterPtr> const& parameters, Kolt::PoolPtr const& pool);

/// Whether the clipboard has as many values as there are parameters.
TALO_EXPORT bool canPasteValues(std::vector<Kolt::ParameterPtr> const& parameters);

/// Makes the values on the clipboard effective in the pool, in the order of the parameters, as one undo step of the
/// first one's history. Nothing is changed if one of them cannot be: returns the reason, a sentence, else an empty
/// text.
[[nodiscard]] TALO_EXPORT QString pasteValues(std::vector<Kolt::ParameterPtr> const& parameters,
                                              Kolt::PoolPtr const& pool);

} // namespace Talo
