#pragma once

#include <panel/window/ObjectView.hpp>
#include <parameters/PoolSource.hpp>
#include <parameters/PoolSourceRef.hpp>
#include <QComboBox>
#include <QDockWidget>
#include <QPointer>

namespace Panel {

/// An additional view of an object as a dock. It shows and edits the pool of the window, or one of its own, which is
/// chosen in its head and named in its title. Deleted when it is closed. User-interface thread.
class ViewDock : public QDockWidget {
    Q_OBJECT

public:
    /// A dock without a view that can be given one of these pools. `windowPools` has the pool of the window.
    ViewDock(std::vector<Kolt::PoolPtr> pools, Kolt::ValuePoolSource& windowPools, QWidget* parent = nullptr);
    /// Deletes the view.
    ~ViewDock() override;

    /// The pool in which the view edits; for the view that this dock is given, which it outlives.
    Kolt::ValuePoolSource& pools() { return source_; }
    /// Takes a view over. Once only.
    void setView(ObjectView* view);

    /// The pool of this view alone; null if it has that of the window.
    Kolt::PoolPtr const& ownPool() const { return ownPool_; }
    /// Gives the view a pool of its own; null, or one that is not offered, for that of the window.
    void setOwnPool(Kolt::PoolPtr const& pool);
    /// Shows the pool that was chosen in the window, unless the view has one of its own.
    void followWindow();

private:
    void choose(int entry);
    void showPool(Kolt::PoolPtr const& pool);
    void showTitle();

    std::vector<Kolt::PoolPtr> const offered_;
    Talo::PoolSourceRef const windowPools_;
    Kolt::PoolPtr ownPool_;
    Talo::PoolSource source_;
    QPointer<ObjectView> view_;
    QComboBox* const selector_;
};

} // namespace Panel
