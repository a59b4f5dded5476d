#pragma once

#include <functional>
#include <lattice/Object.hpp>
#include <parameters/rows/ContentArea.hpp>
#include <parameters/rows/ParameterRow.hpp>
#include <QMargins>
#include <set>
#include <vector>

class QGroupBox;

namespace Talo {

/// The rows of any number of parameters below each other, grouped by what stands before the last dot of their names.
/// Only rows that can be seen are made, and those that were scrolled far away are deleted again, so an object with ten
/// thousand parameters opens as fast as one with ten. The height of a row that was never made is estimated by one that
/// shows a parameter of the same type and preferences; what the user sees stays in its place when the estimate was
/// wrong.
///
/// Tab and Shift+Tab go through the controls of all rows in their order, made or not, and on to what follows. So do
/// they with Ctrl, as a text of several lines keeps Tab for itself.
///
/// The parameters are referred to weakly; one that goes before its row was made has none. User-interface thread.
class RowArea : public ContentArea {
    Q_OBJECT

public:
    /// `objectName` is the name of the object that the parameters belong to. `pools` must outlive the area. Editors are
    /// open.
    RowArea(QString const& objectName, std::vector<Kolt::ParameterPtr> const& parameters, PoolSource& pools,
            QWidget* parent = nullptr);
    ~RowArea() override;

    /// The rows that stand, in their order.
    std::vector<ParameterRow*> rows() const;
    /// The row of a parameter by its whole name, which is made if it does not stand; null when there is no such
    /// parameter.
    ParameterRow* row(QString const& parameterName);

    /// Makes the editors that `closeEditors` deleted.
    void openEditors();
    /// Hides and deletes all editors; rows made from now on have none until they are opened again.
    void closeEditors();
    /// Shows in every row what the chosen pool holds.
    void showPool();
    /// Has the rows note which parameters are gone.
    void checkParameters();
    /// Shows or hides the raw values of all rows, also of those that are made later.
    void setRawValuesShown(bool shown);
    /// Leaves out the parameters for which the predicate does not hold; an empty one shows all.
    void setFilter(std::function<bool(Kolt::VParameter const&)> const& filter);
    /// Gives the focus to the first control of an editor in the first shown row that has one; false where there is
    /// none.
    bool focusFirstControl();
    /// How many parameters are not left out.
    int shownCount() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// A row has an editor from now on.
    void editorOpened(Talo::ParameterRow* row);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Entry {
        QString name;
        Kolt::ParameterRef parameter;
        // What the row is like: rows of one sort are taken to be equally high.
        std::size_t sort = 0;
        std::size_t group = 0;
        // In the content; a parameter that is left out has no height.
        int top = 0;
        int height = 0;
        bool shown = true;
        ParameterRow* row = nullptr;
    };
    struct Group {
        QString title;
        QGroupBox* box = nullptr;
        int top = 0;
        int height = 0;
    };

    void measureBoxes();
    Entry* entryOf(QWidget const* widget);
    int rowWidth() const;
    void make(Entry& entry);
    /// Takes over how high a row wants to be; says whether that is news.
    bool measure(Entry& entry);
    void measureAll();
    /// Gives everything its place.
    void arrange();
    /// The same, where the first row that the user sees stays in its place.
    void arrangeInPlace();
    void makeVisibleRows();
    void dropFarRows();
    int visibleTop() const;
    int visibleBottom() const;
    /// Gives the focus to the next row's control, from a place on; false where there is none. What resets a row stands
    /// before its editor and is left out `toEditor`.
    bool focusFrom(std::ptrdiff_t place, bool next, bool toEditor);
    bool focusControl(Entry const& entry, bool first, bool ofEditor);
    bool focusOutside(QWidget const* from, bool next);

    QString const objectName_;
    PoolSource& pools_;
    QWidget* const content_;
    std::vector<Group> groups_;
    // Those of one group stand together.
    std::vector<Entry> entries_;
    // The places in the list of those that have a row.
    std::set<std::size_t> made_;
    QMargins titledBox_;
    QMargins plainBox_;
    // By sort; 0 for one of which no row was made.
    std::vector<int> heights_;
    // Both only ever grow, so that the editors stay in their place when another pool is chosen.
    int nameWidth_ = 0;
    int leastRowWidth_ = 0;
    bool editorsOpen_ = true;
    bool rawValuesShown_ = false;
    bool making_ = false;
};

} // namespace Talo
