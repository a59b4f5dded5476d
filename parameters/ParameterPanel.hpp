#pragma once

#include <lattice/Object.hpp>
#include <lattice/ValuePoolSource.hpp>
#include <memory>
#include <parameters/commands/UndoText.hpp>
#include <QAction>
#include <QWidget>
#include <tessera/Export.hpp>

namespace Talo {

class EditorChoice;
class RowArea;

/// Shows the parameters of one object with their editors. Editors come from the plug-ins that are loaded. Each gesture
/// of the user is one undo step, the mouse wheel changes only the editor that has the focus, and every control can be
/// reached by Tab and has an accessible name. Any number of panels may show one object; they stay in step.
///
/// The panel refers to the object weakly. User-interface thread.
class TALO_EXPORT ParameterPanel : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY filterChanged)
    Q_PROPERTY(bool advancedShown READ advancedShown WRITE setAdvancedShown NOTIFY advancedShownChanged)
    Q_PROPERTY(bool rawValuesShown READ rawValuesShown WRITE setRawValuesShown NOTIFY rawValuesShownChanged)

public:
    /// What `action` offers.
    enum class Command { Undo, Redo, Reset, ResetAll, Copy, Paste, SetAsDefault, ShowHelp };
    Q_ENUM(Command)

    /// `pools` says which pool is edited; after it was destroyed edits are dropped. Undo and Redo act on the history of
    /// the object's first parameter, which must outlive the panel. A null object gives an empty panel and a warning of
    /// Qt.
    ParameterPanel(Kolt::ObjectPtr const& object, Kolt::ValuePoolSource& pools, QWidget* parent = nullptr);
    ~ParameterPanel() override;

    Kolt::ObjectPtr object() const; ///< the shown object; null if it was deleted

    /// The words of the filter: only parameters that contain all of them in "object.parameter", label, help or value
    /// are shown, advanced ones as well. Values count as they are when the filter or the pool is set: a parameter that
    /// is being edited stays.
    QString filter() const;
    void setFilter(QString const& words); ///< empty: shows all; other words than before scroll to the top
    bool advancedShown() const;           ///< whether parameters with the property "advanced" are shown; not at first
    void setAdvancedShown(bool shown);    ///< shows or hides them
    bool rawValuesShown() const;          ///< whether the parameters' texts are shown beside the editors
    void setRawValuesShown(bool shown);   ///< shows or hides them

    /// A command as an action with its shortcut, for menus and tool bars; it is made when it is first asked for and
    /// belongs to the panel. ResetAll acts on all rows, the others but Undo and Redo on the row with the focus.
    /// The shortcuts work while the focus is in the panel.
    QAction* action(Command command);
    /// Who edits which parameter, where a person chose; the context menu of a row then offers the choice. Not owned;
    /// null for none, as at first.
    void setEditorChoice(EditorChoice* choice);
    void setNaming(ParameterNaming naming); ///< how undo texts name parameters; empty: by their own names

    void commitPendingEdit(); ///< before saving: writes a typed text and ends the gesture that goes on
    void closeEditors();      ///< deletes all editors, before a plug-in is unloaded
    void openEditors();       ///< makes the editors that closeEditors() deleted
    void showPool();          ///< shows and filters by another pool that was chosen; scroll position and focus stay
    RowArea* rowArea() const; ///< the scroll area with the rows: to find, show and focus one

signals:
    void filterChanged(QString const& words);                                ///< the filter has other words
    void advancedShownChanged(bool shown);                                   ///< advanced parameters came or went
    void rawValuesShownChanged(bool shown);                                  ///< the texts were shown or hidden
    void editorOpened(Kolt::ParameterPtr const& parameter, QWidget* editor); ///< an editor was made
    void helpRequested(Kolt::ParameterPtr const& parameter);                 ///< to be shown in a HelpView, say
    void refused(QString const& reason); ///< a command did nothing, for this reason: a sentence

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    class Private;
    std::unique_ptr<Private> const d_;
};

} // namespace Talo
