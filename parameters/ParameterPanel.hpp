#pragma once

#include <lattice/Object.hpp>
#include <lattice/ValuePoolSource.hpp>
#include <memory>
#include <parameters/commands/UndoText.hpp>
#include <QAction>
#include <QWidget>
#include <tessera/Export.hpp>

namespace Talo {

class RowArea;

/// Shows the parameters of one object with their editors. Editors come from the plug-ins that are loaded. Each gesture
/// of the user is one undo step, the mouse wheel changes only the editor that has the focus, and every control can be
/// reached by Tab and has an accessible name. Any number of panels may show one object; they stay in step.
///
/// The panel refers to the object weakly. User-interface thread.
class TALO_EXPORT ParameterPanel : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY filterChanged)
    Q_PROPERTY(bool rawValuesShown READ rawValuesShown WRITE setRawValuesShown NOTIFY rawValuesShownChanged)

public:
    /// What `action` offers.
    enum class Command { Undo, Redo, Reset, ResetAll, Copy, Paste, SetAsDefault };
    Q_ENUM(Command)

    /// `pools` says which pool is edited; after it was destroyed edits are dropped. Undo and Redo act on the history of
    /// the object's first parameter, which must outlive the panel. A null object gives an empty panel and a warning of
    /// Qt.
    ParameterPanel(Kolt::ObjectPtr const& object, Kolt::ValuePoolSource& pools, QWidget* parent = nullptr);
    ~ParameterPanel() override;

    /// The shown object; null if it was deleted.
    Kolt::ObjectPtr object() const;

    /// The words of the filter: only parameters that contain all of them in "object.parameter" or in their value are
    /// shown. Values count as they are when the filter or the pool is set: a parameter that is being edited stays.
    QString filter() const;
    /// Replaces the words of the filter; an empty text shows all parameters. Other words scroll to the top.
    void setFilter(QString const& words);
    /// Whether the parameters' texts are shown beside the editors.
    bool rawValuesShown() const;
    /// Shows or hides the parameters' texts.
    void setRawValuesShown(bool shown);

    /// A command as an action with its shortcut, for menus and tool bars; it is made when it is first asked for and
    /// belongs to the panel. Reset, Copy, Paste and SetAsDefault act on the row with the focus, ResetAll on all rows.
    /// The shortcuts work while the focus is in the panel.
    QAction* action(Command command);
    /// How undo texts name parameters; an empty function: by their own names.
    void setNaming(ParameterNaming naming);

    /// Writes a typed text that waits for its field to be left, and ends the gesture that goes on: before saving.
    void commitPendingEdit();
    /// Deletes all editors, before a plug-in is unloaded; openEditors() makes them again.
    void closeEditors();
    /// Makes the editors that closeEditors() deleted.
    void openEditors();
    /// Shows the current pool's values after another pool was chosen, and filters by them. Scroll position and focus
    /// stay.
    void showPool();
    /// The scroll area with the rows: to find, show and focus one.
    RowArea* rowArea() const;

signals:
    /// The filter has other words.
    void filterChanged(QString const& words);
    /// The parameters' texts were shown or hidden.
    void rawValuesShownChanged(bool shown);
    /// An editor was made for a parameter, when its row was first shown or editors were opened again.
    void editorOpened(Kolt::ParameterPtr const& parameter, QWidget* editor);
    /// A command did nothing, for this reason: a sentence.
    void refused(QString const& reason);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    class Private;
    std::unique_ptr<Private> const d_;
};

} // namespace Talo
