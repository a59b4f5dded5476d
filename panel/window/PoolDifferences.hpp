#pragma once

#include <network/Network.hpp>
#include <QAbstractTableModel>
#include <vector>

namespace Panel {

/// The parameters of a network whose values differ between two pools, with both values, as they were at the last
/// `compare`. Parameters that people do not edit, as a status, are none of them. User-interface thread.
class PoolDifferences : public QAbstractTableModel {
    Q_OBJECT

public:
    /// The object, the parameter, and its values in both pools.
    enum Column { Object, Parameter, First, Second, ColumnCount };

    /// Without rows.
    explicit PoolDifferences(QObject* parent = nullptr);
    ~PoolDifferences() override;

    /// Lists the differences between two pools of a network; none where one of the three is null.
    void compare(Talo::Network const* network, Kolt::PoolPtr const& first, Kolt::PoolPtr const& second);
    /// The cells of a row with tabs between them; line feeds and tabs within a value are written as "\n" and "\t".
    QString rowText(int row) const;
    /// What the columns are called, in the same form.
    QString headerText() const;

    int rowCount(QModelIndex const& parent = {}) const override;
    int columnCount(QModelIndex const& parent = {}) const override;
    QVariant data(QModelIndex const& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Difference {
        QString texts[ColumnCount];
        QString label;
    };
    std::vector<Difference> differences_;
    QString pools_[2];
};

} // namespace Panel
