#pragma once

#include <network/Network.hpp>
#include <panel/window/FilterField.hpp>
#include <QComboBox>
#include <QToolBar>

namespace Panel {

/// The tool bar with the choice of the pool and the filter. User-interface thread.
class PoolToolBar : public QToolBar {
    Q_OBJECT

public:
    explicit PoolToolBar(QWidget* parent = nullptr);
    ~PoolToolBar() override;

    /// Offers the pools of a network; the first one is current. Emits nothing.
    void showPools(Talo::Network const& network);
    /// Chooses a pool by its name; false if there is none.
    bool choosePool(QString const& name);
    FilterField* filterField() const { return filterField_; }

signals:
    /// The user, or `choosePool`, chose another pool, by its place among those of the network.
    void poolChosen(int index);

private:
    QComboBox* const selector_;
    FilterField* const filterField_;
};

} // namespace Panel
