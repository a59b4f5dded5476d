#pragma once

#include <network/Network.hpp>
#include <panel/window/FilterField.hpp>
#include <panel/window/ObjectModel.hpp>
#include <QComboBox>
#include <QLabel>
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
    /// Says beside the filter what it found; nothing without a filter.
    void showFound(std::optional<ObjectModel::Total> const& found);

signals:
    /// The user, or `choosePool`, chose another pool, by its place among those of the network.
    void poolChosen(int index);

private:
    /// Shows the filter and gives it the focus.
    void find();

    QComboBox* const selector_;
    FilterField* const filterField_;
    QLabel* const found_;
};

} // namespace Panel
