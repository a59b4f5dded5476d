#pragma once

#include <plugin/VInputValue.hpp>

#include <bramble/MultipleStringSelection.hpp>
#include <lattice/CreationPreferences.hpp>
#include <QCheckBox>
#include <QFont>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>
#include <qVinputs/basics/FilledTexts.hpp>
#include <vector>

// moc takes no nested classes: clazy:excludeall=missing-qobject-macro

namespace Kolt {

/// Edits which texts of a list are chosen. Every text is a row of a list in which clicks choose rows. Beside the list
/// are buttons for all, none and the inverse, which act when they are pressed, and two fields that act when Return is
/// pressed: they add rows, or with "remove" checked remove them. One field takes a wildcard, which is matched against
/// whole texts without regard to case and in which "*" and "?" stop at a "/"; the other takes a list of row numbers
/// (rowsByNumber). Each action changes the choice in place and commits the value.
///
/// After a click the choice is what the list shows; the other actions change the list and the choice in the same way.
/// Rows chosen by the keyboard are committed with the next click. A click without a pool, or if the value refers to no
/// choice, changes the view alone.
///
/// A change from elsewhere fills the list anew, prints a line that says so, and fixes the widget's size so that the
/// texts fit. A list that has these texts already (FilledTexts), and that nobody used since it was filled, keeps its
/// rows and looks the same. The time of an action is linear in the number of rows. If the parameter was deleted,
/// the list is empty. User-interface thread.
class qVMultipleStringList : public QFrame, public VInputValue<VMultipleStringList> {
    Q_OBJECT

public:
    /// Chooses every row.
    class AllButton : public QPushButton {
    public:
        using QPushButton::QPushButton;
        qVMultipleStringList* owner = nullptr; ///< the widget on which it acts, its parent; never null in use

    protected:
        void mousePressEvent(QMouseEvent* event) override;
    };

    /// Chooses no row.
    class NoneButton : public QPushButton {
    public:
        using QPushButton::QPushButton;
        qVMultipleStringList* owner = nullptr; ///< the widget on which it acts, its parent; never null in use

    protected:
        void mousePressEvent(QMouseEvent* event) override;
    };

    /// Exchanges chosen and not chosen.
    class InverseButton : public QPushButton {
    public:
        using QPushButton::QPushButton;
        qVMultipleStringList* owner = nullptr; ///< the widget on which it acts, its parent; never null in use

    protected:
        void mousePressEvent(QMouseEvent* event) override;
    };

    /// The rows. A release of the mouse commits the rows shown as chosen.
    class MyQListWidget : public QListWidget {
    public:
        using QListWidget::QListWidget;
        qVMultipleStringList* owner = nullptr; ///< the widget on which it acts, its parent; never null in use
        /// Whether it was pressed, by mouse or keyboard, since it was filled. Qt then remembers rows.
        bool wasUsed = false;
        /// Whether a mouse button that was pressed on it is still held. Qt then remembers which rows were chosen last.
        bool isHeld = false;

    protected:
        void mousePressEvent(QMouseEvent* event) override;
        void keyPressEvent(QKeyEvent* event) override;
        void mouseReleaseEvent(QMouseEvent* event) override;
    };

    /// Makes an editor of `parameter` on `parent`, which owns it and may be null. The editor refers to the parameter
    /// weakly. It asks `poolSource` for the pool at each use; the source must outlive it, and null means that there is
    /// no pool. `preferences` is not read.
    qVMultipleStringList(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
                         PreferencesPtr const& preferences);
    ~qVMultipleStringList() override;

    /// Fills the list with the texts of the editor's pool; writes nothing. Any other value is ignored.
    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

public slots:
    /// Does nothing.
    void updateSelection();
    /// Exchanges chosen and not chosen for the text of an item and commits; the list still shows the same rows as
    /// chosen. Prints the slot's name and the text, a line each. Null: nothing.
    void updateSelectionA(QListWidgetItem* i);
    /// Adds or removes the rows that match the wildcard.
    void wildSelect();
    /// Adds or removes the rows that the numbers name.
    void numberSelect();

private:
    /// One entry for each row of the list.
    using Rows = std::vector<bool>;
    /// No row of the list.
    static constexpr int NoRow = -1;

    /// Rows to which an action is applied one after the other. The last one is kept apart (showRows).
    struct AppliedRows {
        Rows rows;        ///< all but the last one, unless that is applied more than once
        int last = NoRow; ///< NoRow if there are none

        /// Appends a row.
        void append(std::size_t row) {
            if (last != NoRow)
                rows[static_cast<std::size_t>(last)] = true;
            last = static_cast<int>(row);
        }
    };

    /// Explains the fields. The labels are those beside them.
    void setToolTips(QLabel& wildcardLabel, QLabel& numberLabel);
    /// Shows a selection as it is filled in. Nothing for a value of another type, or one without a selection.
    void showValue(ValuePtr const& value);
    /// Fills the list with the cached texts, with no row current. False if it was filled with equal texts before and
    /// not used since, so that nothing was to be done; the rows are chosen as they were then.
    bool fillRows();
    /// The width that the widest cached text asks for, in pixels. Texts that were measured before are not measured
    /// again.
    int widthOfTexts();
    /// 0 if the list was deleted.
    int rowCount() const;
    /// The rows that the list shows as chosen.
    Rows selectedRows() const;
    /// Has the list show these rows as chosen, and no other, and then the last row as chosen or not; no other if there
    /// is no last row. Commits nothing.
    /// Selects the last row in a call of its own. When the mouse moves while it holds a row, Qt undoes the latest
    /// selection, and that must be one row, not all.
    void showRows(Rows const& rows, int last, bool chosen);
    /// Adds rows to the choice, or removes them if the box says so, and commits.
    void addOrRemoveRows(AppliedRows const& series);
    // The actions of the buttons and of a click. Each one commits.
    void chooseAll();
    void chooseNone();
    void invertChoice();
    void chooseSelectedRows();
    /// Commits the cached choice. The editor may be deleted meanwhile.
    void commitChoice();

    // The controls are children; each pointer is null if its control was deleted.
    QPointer<QHBoxLayout> layout_;
    QPointer<QVBoxLayout> buttonColumn_;
    QPointer<AllButton> allButton_;
    QPointer<NoneButton> noneButton_;
    QPointer<InverseButton> inverseButton_;
    QPointer<QCheckBox> removeBox_;
    QPointer<QLineEdit> wildcardEdit_;
    QPointer<QLineEdit> numberEdit_;
    QPointer<MyQListWidget> list_;

    FilledTexts filled_;
    // The texts that were measured last, their font, and their width in pixels.
    VMultipleStringList measured_;
    QFont measuredFont_;
    int measuredWidth_ = 0;
};

} // namespace Kolt
