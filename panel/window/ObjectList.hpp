#pragma once

#include <functional>
#include <network/Network.hpp>
#include <panel/window/IconMaker.hpp>
#include <QTreeWidget>

namespace Panel {

/// The objects of a network, each with its name and, where one of its parameters can be shown as an icon, that icon.
/// Icons are made for the objects that can be seen. User-interface thread.
class ObjectList : public QTreeWidget {
    Q_OBJECT

public:
    /// `pools` must outlive the list.
    explicit ObjectList(Kolt::ValuePoolSource& pools, QWidget* parent = nullptr);
    ~ObjectList() override;

    /// Lists the objects of a network, with their icons; null empties the list. None is chosen.
    void showNetwork(Talo::Network const* network);
    /// Chooses an object by its name; false when it is not in the list.
    bool chooseObject(QString const& name);
    /// The icon beside an object's name, which is made if it does not stand; null when the object has none.
    QWidget* icon(QString const& name);
    /// Leaves out the objects for which the predicate does not hold; an empty one shows all. If the chosen one is left
    /// out, the first shown one is chosen, if there is any.
    void setFilter(std::function<bool(Kolt::VObject const&)> const& filter);

    void openIcons();
    /// Hides and deletes the icons.
    void closeIcons();
    /// Forgets which creators make no icons, as before plug-ins are loaded or unloaded.
    void forgetCreators() { iconMaker_.forgetCreators(); }

signals:
    /// Another object was chosen, by whomever.
    void objectChosen(Kolt::ObjectPtr const& object);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void changeEvent(QEvent* event) override;

private:
    void setRowHeights();
    void makeIcon(QTreeWidgetItem* item);
    void makeVisibleIcons();
    QTreeWidgetItem* findItem(QString const& name) const;
    Kolt::ObjectPtr objectOf(QTreeWidgetItem const* item) const;

    IconMaker iconMaker_;
    std::vector<Tessera::WeakPtr<Kolt::VObject, Kolt::VManagedObjectBase>> objects_;
    bool iconsOpen_ = false;
};

} // namespace Panel
