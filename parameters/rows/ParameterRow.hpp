#pragma once

#include <lattice/EditRecorder.hpp>
#include <memory>
#include <parameters/input/GestureTarget.hpp>
#include <parameters/rows/ChangeListener.hpp>
#include <parameters/rows/EditorCell.hpp>
#include <parameters/rows/EditorExtension.hpp>
#include <parameters/rows/EditorScroller.hpp>
#include <parameters/rows/ParameterVector.hpp>
#include <parameters/rows/RawValueLabel.hpp>
#include <parameters/rows/RemovalListener.hpp>
#include <parameters/rows/RowListener.hpp>
#include <parameters/rows/RowName.hpp>
#include <parameters/rows/RowNeeds.hpp>
#include <QLabel>
#include <QWidget>
#include <tessera/Export.hpp>
#include <utility>

class QHBoxLayout;
class QMenu;

namespace Talo {

/// One parameter in a panel: its label, its editor or a placeholder with the unit behind it, and on demand its raw
/// value. Label, unit and the tool tip of the label come from the parameter's properties (ParameterDescription) and
/// follow them. The tool tip of the raw value says which creator made the editor and why. Where the parameter keeps
/// values per pool, a line below the name says which pool is edited; if the parameter was deleted, the line says so. A
/// dot beside the name marks a value that is not the default and resets it. A context menu has the commands for the
/// value.
///
/// For screen readers, each control of the editor is named after the parameter, followed by its own caption; its
/// description contains the object, the type and the pool.
///
/// While the row has an editor for a value that people edit, its edits are recorded in the parameter's undo history
/// (EditRecorder).
///
/// The row refers to the parameter weakly and stays usable without it. User-interface thread.
class TALO_EXPORT ParameterRow : public QWidget, public GestureTarget, private Kolt::ValueNotifier {
    Q_OBJECT

public:
    /// `objectName` is the name of the object that the parameter belongs to. Has no editor before `openEditor`. After
    /// `pools` was destroyed there is no pool. The listener outlives the row.
    ParameterRow(QString const& objectName, Kolt::ParameterPtr const& parameter, PoolSourceRef const& pools,
                 RowListener& listener, QWidget* parent);
    ~ParameterRow() override;

    /// The row that a widget is or is in, its popups and dialogs included; null for none, and for null.
    static ParameterRow* rowOf(QWidget* widget);

    /// The parameter's whole name, also after the parameter was deleted.
    QString const& parameterName() const { return parameterName_; }
    /// The parameter; null when it is gone.
    Kolt::ParameterPtr parameter() const { return parameter_.strong(); }
    /// The current pool; null for none.
    Kolt::PoolPtr pool() const { return pools_.pool(); }
    Kolt::UndoHistory& history() const override;
    /// Marks a value that is not the default; null until it first differed.
    ModifiedIndicator* modifiedIndicator() const { return names_->indicator(); }
    /// The label of the parameter; lives as long as the row.
    QLabel* nameLabel() const { return names_->label(); }
    /// The label of the vector in the row of its first component; null in other rows.
    QLabel* vectorLabel() const { return names_->vectorLabel(); }
    /// The line below the name; empty for none.
    QString note() const { return names_->note(); }
    /// Null until it was first shown.
    RawValueLabel* rawValue() const { return rawValue_; }
    /// What the row says about its parameter, as rich text; the tool tip of the label. Empty after the parameter was
    /// deleted.
    QString toolTipText() const;
    /// Shows the unit behind the editor; null without a unit and while the editor is closed.
    QLabel* unitLabel() const { return unitLabel_; }
    /// The editor or the placeholder; null while closed.
    QWidget* editor() const { return cell_.widget(); }

    /// Makes the editor, or a placeholder where none can be made. Does nothing if there is one.
    void openEditor();
    /// Follows the changes of the parameter from now on, as it does with an editor.
    void follow();
    /// Shows a sentence instead of the editor, whose code had a fault (Kolt::EditorFaults). Nothing while it is closed.
    void showFault(QString const& sentence);
    /// Hides the editor and deletes it as soon as control returns to the event loop.
    void closeEditor();
    /// Shows another widget in place of the editor, which is closed until the cover is taken away with null. The row
    /// takes it over.
    void setCover(QWidget* cover);
    /// The widget in place of the editor; null for none.
    QWidget* cover() const { return cover_; }
    /// What people call the parameter: its label, or the names of the vector and of the component.
    QString spokenName() const;
    /// Shows what the current pool holds.
    void showPool();
    /// Shows whether the value is the default, as after the defaults changed.
    void showDefault();
    /// Shows or hides the raw value beside the editor.
    void setRawValueShown(bool shown);
    /// Lets people use the editor, or not; they can at first. That of a read-only parameter they never can.
    void setEditorEnabled(bool enabled);
    /// Makes the row one of the components of a vector, counted from 0. Its name is short from now on, and the
    /// clipboard takes the whole vector. The vector's name is before it if `isHeaded`.
    void setComponent(ParameterVector const& vector, int component, bool isHeaded);
    /// Sets the width of the name column, so that the rows of a form are aligned. In pixels.
    void setNameWidth(int width) { names_->setColumnWidth(width); }
    /// The width of the name column that the name and the note need, in pixels; 0 for a component without the vector's
    /// name.
    int nameWidth() const { return names_->columnNeed(); }
    /// The least width of the row in which its editor can be used, without the name column, in pixels.
    int leastWidth() const;
    /// Limits the editor to what a row of this width leaves it. One that cannot become so narrow scrolls from then on.
    void fitInto(int width);

    /// Whether the row was laid out since this was last called.
    bool takeLayout() { return std::exchange(wasLaidOut_, false); }
    /// Whether the row asks for another size since this was last called.
    bool takeSizeChange();

    /// The commands for the value in the current pool. Reset and paste are undo steps. What cannot be done is
    /// `refused`.
    void resetToDefault();
    /// Copies the value to the clipboard, or all values of the vector.
    void copyValue();
    /// Makes the value on the clipboard effective, or the values for a whole vector.
    void pasteValue();
    /// Makes what the parameter holds its default.
    void setAsDefault();
    /// Asks for the help of the parameter to be shown.
    void showHelp();
    /// Says that nothing was done, and why: a sentence.
    void refuse(QString const& reason) { listener_.onRefused(reason); }

    /// Some editors ask the widget around them to adjust its size; a row keeps the width that it was given.
    QSize sizeHint() const override;

    /// Follows the tool tip of a number field in its accessible description.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// The row shows what another pool holds.
    void poolShown();

protected:
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* properties) override;
    void onListGone() override;
    void alignEditor();
    /// Shows what the properties say now.
    void showDescription();
    void showUnit(QString const& unit);
    void watchEditor(Kolt::ParameterPtr const& parameter);
    /// After a change of the value: makes an editor anew that cannot show it.
    void checkEditor();
    void reopenEditor();
    void connectNumberFields();
    std::vector<Kolt::ParameterPtr> livingVector() const;
    void updateAccessibility();
    void showNote();
    /// Says all that it says in the language of now.
    void retranslate();
    /// Shows whether the parameter still exists.
    void checkParameter();
    QString removedText() const;

    QString const objectName_;
    QString const parameterName_;
    Kolt::ParameterRef const parameter_;
    PoolSourceRef const pools_;
    RowListener& listener_;
    RowName* const names_;
    QHBoxLayout* const layout_;
    // The parameters of the vector that the row is a component of, and what it is called there.
    std::vector<Kolt::ParameterRef> vector_;
    QString vectorName_;
    QString componentName_;
    // Made when first needed: most rows never need them.
    RawValueLabel* rawValue_ = nullptr;
    QLabel* unitLabel_ = nullptr;
    QPointer<QWidget> cover_;
    // The editor of a covered row is opened when the cover goes.
    bool isOpen_ = false;
    bool isEditorEnabled_ = true;
    bool wasLaidOut_ = true;
    // Whether the parameter notifies the row itself, and after the editor, so that it finds what the editor shows.
    bool isFollowing_ = false;
    bool isAfterEditor_ = false;
    RowNeeds needs_;
    // The default that the indicator names.
    Tessera::WeakPtr<Kolt::VValueBase> shownDefault_;
    // How the name is aligned with the editor.
    Qt::Alignment vertical_ = Qt::AlignVCenter;
    EditorCell cell_;
    // Around an editor that is wider than the row; null for others.
    QPointer<EditorScroller> scroller_;
    // Null for editors that need none, and after the editor was deleted.
    QPointer<EditorExtension> extension_;
    // Null while the row itself is notified after the editor.
    std::unique_ptr<ChangeListener> afterEditor_;
    // Null for a parameter that people edit, which notifies the row itself.
    std::unique_ptr<RemovalListener> removal_;
    std::shared_ptr<Kolt::EditRecorder> recorder_;
};

} // namespace Talo
