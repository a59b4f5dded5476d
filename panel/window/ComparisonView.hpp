#pragma once

#include <panel/window/PoolDifferences.hpp>
#include <QComboBox>
#include <QLabel>
#include <QSortFilterProxyModel>
#include <QTimer>
#include <QTreeView>

namespace Panel {

/// A table of the parameters that differ between two pools, which are chosen above it. It is compared anew when a pool
/// is chosen, when it is shown, when it is asked for and a moment after `compareLater`. Rows are sorted by a click on a
/// column; Ctrl+C copies the chosen rows as text with tabs, or all rows if none is chosen. User-interface thread.
class ComparisonView : public QWidget {
    Q_OBJECT

public:
    explicit ComparisonView(QWidget* parent = nullptr);
    ~ComparisonView() override;

    /// Compares the first two pools of a network, which must live until another one is shown; null for none.
    void showNetwork(Talo::Network const* network);
    /// Compares anew after a moment, if the view is shown: values changed, and maybe more of them soon.
    void compareLater();

signals:
    /// The user wants to see a parameter of the table.
    void parameterChosen(QString const& object, QString const& parameter);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void makeHead();
    void makeTable();
    void compare();
    void copy() const;
    Kolt::PoolPtr chosenPool(QComboBox const& selector) const;

    Talo::Network const* network_ = nullptr;
    PoolDifferences* const differences_;
    QSortFilterProxyModel* const sorted_;
    QTreeView* const table_;
    QComboBox* const first_;
    QComboBox* const second_;
    QLabel* const count_;
    QWidget* const head_;
    QTimer timer_;
};

} // namespace Panel
