#pragma once

#include <lattice/Object.hpp>
#include <lattice/ValuePoolSource.hpp>
#include <memory>
#include <parameters/commands/UndoText.hpp>
#include <QAction>
#include <QWidget>
#include <tessera/Export.hpp>

class QMenu;

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
    Q_PROPERTY(bool onlyChanged READ onlyChanged WRITE setOnlyChanged NOTIFY onlyChangedChanged)
    Q_PROPERTY(bool advancedShown READ advancedShown WRITE setAdvancedShown NOTIFY advancedShownChanged)
    Q_PROPERTY(bool rawValuesShown READ rawValuesShown WRITE setRawValuesShown NOTIFY rawValuesShownChanged)

public:
    /// What `action` offers.
    enum class Command { Undo, Redo, Reset, ResetSection, ResetAll, Copy, Paste, SetAsDefault, ShowHelp };
    Q_ENUM(Command)

    /// `pools` says which pool is edited; after it was destroyed edits are dropped. Undo and Redo act on the history of
    /// the object's first parameter, which must outlive the panel. A null object gives an empty panel and a warning of
    /// Qt.
    ParameterPanel(Kolt::ObjectPtr const& object, Kolt::ValuePoolSource& pools, QWidget* parent = nullptr);
    /// Shows several objects in one form: the parameters that all of them have, in the order of the first object. A row
    /// whose values differ says so; an edit goes to all objects as one undo step. A null object is left out.
    ParameterPanel(std::vector<Kolt::ObjectPtr> const& objects, Kolt::ValuePoolSource& pools,
                   QWidget* parent = nullptr);
    ~ParameterPanel() override;

    Kolt::ObjectPtr object() const; ///< the shown object, the first of several; null if it was deleted

    Kolt::PoolPtr pool() const; ///< the pool that is edited; null for none

    /// The words of the filter: only parameters that contain all of them in "object.parameter", label, help, value or
    /// the object's kind are shown, advanced ones as well. Values count as they are when the filter or the pool is set:
    /// a parameter that is being edited stays.
    QString filter() const;
    void setFilter(QString const& words); ///< empty: shows all; other words than before scroll to the top
    void setKind(QString const& kind);    ///< what the object is for, for the filter; none at first

    /// Whether only parameters whose value differs from the default are shown, advanced ones as well. Differences count
    /// as they are when this, the filter or the pool is set: a parameter that is being edited stays.
    bool onlyChanged() const;
    void setOnlyChanged(bool only);     ///< shows only changes, or all parameters
    bool advancedShown() const;         ///< whether parameters with the property "advanced" are shown; not at first
    void setAdvancedShown(bool shown);  ///< shows or hides them
    bool rawValuesShown() const;        ///< whether the parameters' texts are shown beside the editors
    void setRawValuesShown(bool shown); ///< shows or hides them

    /// A command as an action with its shortcut, for menus and tool bars; it is made when it is first asked for and
    /// belongs to the panel. ResetAll acts on all parameters of the object, ResetSection on
    /// those of the section with the focus, the others but Undo and Redo on the row with the focus. The shortcuts work
    /// while the focus is in the panel.
    QAction* action(Command command);
    /// Who edits which parameter, where a person chose; the context menu of a row then offers the choice. Not owned;
    /// null for none, as at first.
    void setEditorChoice(EditorChoice* choice);
    void setNaming(ParameterNaming naming); ///< how undo texts name parameters; empty: by their own names

    /// Makes the defaults of all parameters effective in the chosen pool, as one undo step (resetToDefaults). Several
    /// objects get their own defaults.
    void resetAll();
    /// Does so for the parameters of one section, hidden ones as well.
    void resetSection(QString const& title);

    void commitPendingEdit(); ///< before saving: writes a typed text and ends the gesture that goes on
    void closeEditors();      ///< deletes all editors, before a plug-in is unloaded
    void openEditors();       ///< makes the editors that closeEditors() deleted
    void showPool();          ///< shows and filters by another pool that was chosen; scroll position and focus stay
    RowArea* rowArea() const; ///< the scroll area with the rows: to find, show and focus one

signals:
    void filterChanged(QString const& words);                                ///< the filter has other words
    void onlyChangedChanged(bool only);                                      ///< only changes are shown, or all
    void advancedShownChanged(bool shown);                                   ///< advanced parameters came or went
    void rawValuesShownChanged(bool shown);                                  ///< the texts were shown or hidden
    void editorOpened(Kolt::ParameterPtr const& parameter, QWidget* editor); ///< an editor was made
    void helpRequested(Kolt::ParameterPtr const& parameter);                 ///< to be shown in a HelpView, say
    /// The context menu of a section is about to be shown: to add further commands.
    void sectionMenuRequested(QMenu* menu, QString const& title);
    void refused(QString const& reason); ///< a command did nothing, for this reason: a sentence

protected:
    void changeEvent(QEvent* event) override;

private:
    void showSectionMenu(QString const& title, QPoint const& place);

    class Private;
    std::unique_ptr<Private> const d_;
};

} // namespace Talo
