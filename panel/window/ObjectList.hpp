#pragma once

#include <panel/window/IconMaker.hpp>
#include <panel/window/ObjectModel.hpp>
#include <QElapsedTimer>
#include <QPointer>
#include <QTreeView>

namespace Panel {

class IconPlace;

/// The objects of a network, below their kinds (ObjectModel), each with its name, with what the filter finds in it and,
/// where one of its parameters can be shown as an icon, with that icon in a column of its own. Icons are made for the
/// objects that can be seen. Several objects can be chosen at once; the first one chosen is the current object.
/// Typing finds an object by the beginning of its name, also below a folded kind. User-interface thread.
class ObjectList : public QTreeView {
    Q_OBJECT

public:
    /// `pools` must outlive the list.
    explicit ObjectList(Kolt::ValuePoolSource& pools, QWidget* parent = nullptr);
    ~ObjectList() override;

    /// Lists the objects of a network, with their icons; null empties the list. None is chosen, no kind is folded.
    void showNetwork(Talo::Network const* network);
    /// Chooses an object by its name, and no other; false when it is not in the list.
    bool chooseObject(QString const& name);
    /// The objects that are chosen, in the order in which they were.
    std::vector<Kolt::ObjectPtr> chosenObjects() const;
    /// The icon beside an object's name, which is made if it does not stand; null when the object has none.
    QWidget* icon(QString const& name);
    /// Leaves out the objects for which the filter has nothing, and shows the numbers of the others; an empty one shows
    /// all. If no chosen object is left, the first shown one is chosen, if there is any. Says what was found.
    ObjectModel::Total setFilter(ObjectModel::Filter const& filter);

    /// The order of the rows; that of the file at first.
    ObjectModel::Order order() const { return model_->order(); }
    /// Puts the rows in another order.
    void setOrder(ObjectModel::Order order);
    /// The names of the folded kinds.
    QStringList foldedKinds() const;
    /// Folds these kinds and unfolds the others; unknown ones are ignored.
    void setFoldedKinds(QStringList const& kinds);
    /// The rows; the list owns the model.
    ObjectModel* objects() const { return model_; }

    void openIcons();
    /// Hides and deletes the icons.
    void closeIcons();
    /// Forgets which creators make no icons, as before plug-ins are loaded or unloaded.
    void forgetCreators() { iconMaker_.forgetCreators(); }

    /// Chooses the next object whose name begins with what was typed.
    void keyboardSearch(QString const& typed) override;

signals:
    /// Another object is the current one, by whomever it was chosen.
    void objectChosen(Kolt::ObjectPtr const& object);
    /// Other objects are chosen: at least one, the current one first. Comes after `objectChosen`.
    void objectsChosen(std::vector<Kolt::ObjectPtr> const& objects);
    /// The order of the rows was changed.
    void orderChanged(ObjectModel::Order order);

protected:
    bool viewportEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void selectionChanged(QItemSelection const& selected, QItemSelection const& deselected) override;

private:
    /// Gives the columns the width of what they show.
    void setColumns();
    void chooseRow(QModelIndex const& index);
    void makeIcon(QModelIndex const& index);
    /// Makes the icons that can be seen, and deletes the others.
    void makeVisibleIcons();
    void deleteIcon(quintptr rowId, QPointer<IconPlace> const& place);
    /// Hides what the filter leaves out; says which row is the first that it does not.
    QModelIndex hideRows();
    /// Chooses none that is hidden, and the first shown one if none is left.
    void repairChoice(QModelIndex const& firstShown);

    ObjectModel* const model_;
    Kolt::ValuePoolSource& pools_;
    IconMaker iconMaker_;
    // By the ids of the rows; null for an object without an icon.
    QHash<quintptr, QPointer<IconPlace>> icons_;
    std::vector<QPersistentModelIndex> chosen_;
    // The one that was reported last.
    QPersistentModelIndex current_;
    QString typed_;
    QElapsedTimer sinceTyped_;
    // Of the numbers that are shown; nothing without a filter.
    std::optional<int> largestCount_;
    int iconWidth_ = 0;
    bool iconsOpen_ = false;
};

} // namespace Panel
