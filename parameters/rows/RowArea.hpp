#pragma once

#include <functional>
#include <lattice/Object.hpp>
#include <parameters/commands/SharedEdits.hpp>
#include <parameters/rows/ContentArea.hpp>
#include <parameters/rows/FocusGuess.hpp>
#include <parameters/rows/FormSections.hpp>
#include <parameters/rows/ParameterRow.hpp>
#include <parameters/rows/RowLayout.hpp>
#include <parameters/rows/RowSizes.hpp>
#include <parameters/rows/VectorRows.hpp>
#include <set>
#include <tessera/Export.hpp>
#include <vector>

namespace Talo {

struct FormPlan;

/// The rows of any number of parameters below each other, in sections (ParameterDescription). Those of the components
/// of a vector (ParameterVector) stand side by side.
/// Only visible rows are made, and rows far from the visible ones are deleted again, so an object with ten thousand
/// parameters opens almost as fast as one with ten. The height of a row that was never made is estimated from rows of
/// the same type and preferences; what the user sees stays in its place if the estimate was wrong.
///
/// Tab and Shift+Tab go through the controls of all rows in their order, made or not, and on to what follows; with Ctrl
/// as well, as a multi-line text keeps Tab for itself.
///
/// The parameters are referred to weakly; one that is deleted before its row was made has none. User-interface thread.
class TALO_EXPORT RowArea : public ContentArea, private RowListener {
    Q_OBJECT

public:
    /// `objectName` is the name of the object that the parameters belong to. After `pools` was destroyed there is no
    /// pool. Editors are open.
    RowArea(QString const& objectName, std::vector<Kolt::ParameterPtr> const& parameters, PoolSourceRef const& pools,
            QWidget* parent = nullptr);
    ~RowArea() override;

    /// The rows that exist, in their order.
    std::vector<ParameterRow*> rows() const;
    /// The row of a parameter by its whole name, made if it does not exist; null if there is no such parameter.
    ParameterRow* row(QString const& parameterName);
    /// Scrolls to the row of a parameter by its whole name; nothing if there is none, or the filter hides it.
    void showRow(QString const& parameterName);

    /// Makes the editors that `closeEditors` deleted.
    void openEditors();
    /// Hides and deletes all editors; rows made from now on have none until they are opened again.
    void closeEditors();
    /// Shows in every row what the current pool holds. Scroll position and focus stay.
    void showPool();
    /// Shows in every row whether the value is the default, as after the defaults changed.
    void showDefaults();
    /// Shows or hides the raw values of all rows, also of those that are made later.
    void setRawValuesShown(bool shown);
    /// Hides the parameters for which the predicate does not hold; an empty one shows all. The scroll position stays.
    void setFilter(std::function<bool(Kolt::VParameter const&)> const& filter);
    /// The boxes around the rows.
    FormSections* sections() const { return sections_; }
    /// The titles of the folded sections.
    QStringList foldedSections() const { return sections_->folded(); }
    /// Folds the sections with these titles and opens the others.
    void setFoldedSections(QStringList const& titles);
    /// Folds or opens all sections that have a title, as a user does.
    void foldAllSections(bool folded) { sections_->foldAll(folded); }
    /// Shows the rows of folded sections as well, as while a filter finds them.
    void setAllSectionsOpen(bool open);
    /// Disables the editors of the parameters for which the predicate does not hold, also those that are made later; an
    /// empty one enables all. It is kept and asked again when a row is made.
    void setEnabledWhen(std::function<bool(Kolt::VParameter const&)> const& predicate);
    /// Has each row show whether other parameters hold the same value, also those that are made later: those that the
    /// function gives for its parameter. It is kept. Before the first row is made.
    void setOthers(std::function<std::vector<SharedParameter>(Kolt::VParameter const&)> const& othersOf);
    /// Gives the focus to the first control of an editor in the first shown row that has one; false if there is none.
    bool focusFirstControl();
    /// How many parameters are not hidden by the filter.
    int shownCount() const { return static_cast<int>(layout_.shownCount()); }

    /// The form is as wide as the view, whatever its rows would like.
    QSize minimumSizeHint() const override;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// A row has an editor from now on.
    void editorOpened(Kolt::ParameterPtr const& parameter, QWidget* editor);
    /// A command of a row did nothing, for this reason: a sentence.
    void refused(QString const& reason);
    /// A parameter has another default.
    void defaultChanged();
    /// A user folded or opened sections.
    void foldChanged();
    /// The user wants to read a parameter's help.
    void helpRequested(Kolt::ParameterPtr const& parameter);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Entry {
        explicit Entry(Kolt::VParameter* shown) : parameter(shown) {}

        Kolt::ParameterRef parameter;
        ParameterRow* row = nullptr;
    };

    void onRefused(QString const& reason) override { emit refused(reason); }
    void onDefaultChanged() override { emit defaultChanged(); }
    void onHelpRequested(Kolt::ParameterPtr const& parameter) override { emit helpRequested(parameter); }
    void onEditorReplaced(ParameterRow const& row) override { emitEditorOpened(row); }
    void addEntries(FormPlan const& plan);
    /// Hides the rows of sections that were folded, and shows those of open ones.
    void showFolding();
    Entry* entryOf(QWidget const* widget);
    std::size_t placeOf(Entry const& entry) const { return static_cast<std::size_t>(&entry - entries_.data()); }
    int rowWidth() const;
    void make(Entry& entry);
    void emitEditorOpened(ParameterRow const& row);
    void measureAll();
    /// Gives every widget its place.
    void arrange();
    void placeSections();
    void resizeContent();
    /// Like `arrange`, but the first row that the user sees stays in its place.
    void arrangeInPlace();
    void makeVisibleRows();
    /// Makes rows that are in sight when those above them have the heights that they ask for. False if there is none.
    bool makeSeenRows();
    void dropFarRows();
    int visibleTop() const { return -content_->y(); }
    int visibleBottom() const;
    /// The row at a place, made if it does not exist; null for one that is not shown, or whose parameter is gone, and
    /// for one that does not exist and would have no control that takes the focus.
    ParameterRow* focusRow(std::size_t place);

    QString const objectName_;
    PoolSourceRef const pools_;
    QWidget* const content_;
    RowLayout layout_;
    VectorRows vectors_;
    // By the numbers of the layout.
    std::vector<Entry> entries_;
    FormSections* sections_ = nullptr;
    // The numbers of the entries that have a row.
    std::set<std::size_t> made_;
    RowSizes sizes_;
    QString longestLabel_;
    std::function<bool(Kolt::VParameter const&)> isEnabled_;
    std::function<std::vector<SharedParameter>(Kolt::VParameter const&)> othersOf_;
    bool editorsOpen_ = true;
    bool rawValuesShown_ = false;
    bool making_ = false;
    bool isFiltered_ = false;
    FocusGuess focusGuess_;
};

} // namespace Talo
