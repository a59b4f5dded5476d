#pragma once

#include <plugin/VInputValue.hpp>

#include <bramble/MultipleStringSelection.hpp>
#include <lattice/CreationPreferences.hpp>
#include <QCheckBox>
#include <QFont>
#include <QFrame>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>
#include <vector>

// moc takes no nested classes: clazy:excludeall=missing-qobject-macro

namespace Kolt {

/// Edits which texts of a list are chosen. Every text is a row of a list in which clicks choose rows. Beside it stand
/// buttons for all, none and the inverse, which act when they are pressed, and two fields that add rows, or with
/// "remove" checked take rows away, when Return is pressed: a wildcard, which is matched against whole texts whatever
/// their case and in which "*" and "?" stop at a "/", and a list of row numbers (rowsByNumber). Each action changes the
/// choice in place and commits the value.
///
/// After a click the choice is what the list shows; the other actions do to the list and to the choice what they say.
/// Rows chosen by the keyboard are committed with the next click. A click without a pool, or where the value refers to
/// no choice, changes the view alone.
///
/// A change from elsewhere fills the list anew, prints a line that says so, and fixes the widget's size so that the
/// texts fit. What an action costs grows with the number of rows and no faster. The preferences are not looked at.
/// Where the parameter is gone the list is empty.
class qVMultipleStringList : public QFrame, public VInputValue<VMultipleStringList> {
    Q_OBJECT

public:
    /// Chooses every row.
    class AllButton : public QPushButton {
    public:
        using QPushButton::QPushButton;
        qVMultipleStringList* owner = nullptr;

    protected:
        void mousePressEvent(QMouseEvent* event) override;
    };

    /// Chooses no row.
    class NoneButton : public QPushButton {
    public:
        using QPushButton::QPushButton;
        qVMultipleStringList* owner = nullptr;

    protected:
        void mousePressEvent(QMouseEvent* event) override;
    };

    /// Exchanges chosen and not chosen.
    class InverseButton : public QPushButton {
    public:
        using QPushButton::QPushButton;
        qVMultipleStringList* owner = nullptr;

    protected:
        void mousePressEvent(QMouseEvent* event) override;
    };

    /// The rows; a release of the mouse commits what they show.
    class MyQListWidget : public QListWidget {
    public:
        using QListWidget::QListWidget;
        qVMultipleStringList* owner = nullptr;

    protected:
        void mouseReleaseEvent(QMouseEvent* event) override;
    };

    qVMultipleStringList(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
                         PreferencesPtr const& preferences);
    ~qVMultipleStringList() override;

    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

public slots:
    /// Does nothing.
    void updateSelection();
    /// Exchanges chosen and not chosen for the text of an item and commits; the list goes on to show what it showed.
    /// Prints its name and the text, a line each. Nothing happens without an item.
    void updateSelectionA(QListWidgetItem* i);
    /// Adds or removes the rows that match the wildcard.
    void wildSelect();
    /// Adds or removes the rows that the numbers name.
    void numberSelect();

private:
    /// One entry for each row of the list.
    using Rows = std::vector<bool>;

    void showValue(ValuePtr const& value);
    int widthOfTexts();
    int rowCount() const;
    Rows selectedRows() const;
    void selectRows(Rows const& rows);
    void addOrRemoveRows(Rows const& rows);
    void chooseAll();
    void chooseNone();
    void invertChoice();
    void chooseSelectedRows();
    void commitChoice();

    QPointer<QHBoxLayout> layout_;
    QPointer<QVBoxLayout> buttonColumn_;
    QPointer<AllButton> allButton_;
    QPointer<NoneButton> noneButton_;
    QPointer<InverseButton> inverseButton_;
    QPointer<QCheckBox> removeBox_;
    QPointer<QLineEdit> wildcardEdit_;
    QPointer<QLineEdit> numberEdit_;
    QPointer<MyQListWidget> list_;

    // The texts last measured, the font in which they were, and their width.
    VMultipleStringList measured_;
    QFont measuredFont_;
    int measuredWidth_ = 0;
};

} // namespace Kolt
