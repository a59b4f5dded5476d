#pragma once

#include <lattice/Object.hpp>
#include <network/Network.hpp>
#include <optional>
#include <QAbstractItemModel>
#include <QHash>
#include <vector>

namespace Panel {

/// The objects of a network as rows, below their kinds where kinds group them. An object without a kind is at the
/// top level. Kinds make no level where there is only one, or where each object has a kind of its own.
///
/// All rows are made at once; an object is found by its name without a search. Refers to the objects weakly.
/// User-interface thread.
class ObjectModel : public QAbstractItemModel {
    Q_OBJECT

public:
    /// The name of the object or kind; how many of its parameters the filter finds; the place of the object's icon.
    enum Column { Name, Found, Icon, ColumnCount };
    /// File: as in the file, a kind where its first object is. Name: kinds and objects by their names. Kind: objects
    /// without a kind, then kinds by their names; objects of one kind as in the file.
    enum class Order { File, Name, Kind };
    Q_ENUM(Order)
    /// The name of an order, for files.
    static QString nameOf(Order order);
    /// The order of that name; File for other texts.
    static Order orderNamed(QByteArray const& name);
    /// How many parameters of an object are found; nothing for an object that is left out.
    using Filter = std::function<std::optional<int>(Kolt::VObject const& object, QString const& kind)>;
    /// What a filter found in all.
    struct Total {
        int objects = 0;    ///< those that are not left out
        int parameters = 0; ///< of all objects
    };

    /// Without rows.
    explicit ObjectModel(QObject* parent = nullptr);
    ~ObjectModel() override;

    /// Lists the objects of a network, without a filter; null for none.
    void showNetwork(Talo::Network const* network);
    /// File at first.
    Order order() const { return order_; }
    /// Moves the rows; persistent indexes follow.
    void setOrder(Order order);
    /// Counts what the filter finds; an empty one shows everything. The rows stay: a view hides those that `isShown`
    /// leaves out.
    Total setFilter(Filter const& filter);

    /// Whether there are rows for kinds.
    bool hasKinds() const { return rows_.size() > objectCount_; }
    /// Whether the row is one of a kind.
    bool isKind(QModelIndex const& index) const { return index.isValid() && index.internalId() >= objectCount_; }
    /// Whether the filter finds the row's object, or an object of the row's kind.
    bool isShown(QModelIndex const& index) const { return index.isValid() && rowOf(index).isShown; }
    /// The object of a row; null for a kind, and for an object that was deleted.
    Kolt::ObjectPtr object(QModelIndex const& index) const;
    /// The row with an internal id, which it keeps until another network is shown.
    QModelIndex withId(quintptr id) const { return indexOf(id); }
    /// The row of an object by its name; invalid if there is none.
    QModelIndex find(QString const& objectName) const;
    /// All rows, as they stand, those of a kind's objects after it; also those that are left out.
    std::vector<QModelIndex> allRows() const;

    QModelIndex index(int row, int column, QModelIndex const& parent = {}) const override;
    QModelIndex parent(QModelIndex const& index) const override;
    int rowCount(QModelIndex const& parent = {}) const override;
    int columnCount(QModelIndex const& parent = {}) const override;
    QVariant data(QModelIndex const& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    // A row's id is its place in rows_: the objects in the order of the file, then the kinds.
    using Ids = std::vector<std::size_t>;
    struct Row {
        QString name;
        /// Of a kind: its name.
        QString kind;
        Tessera::WeakPtr<Kolt::VObject, Kolt::VManagedObjectBase> object;
        std::optional<std::size_t> parent;
        Ids children;
        /// The place of the object in the file, or that of a kind's first object.
        std::size_t fileOrder = 0;
        /// Below its parent.
        int row = 0;
        int found = 0;
        bool isShown = true;
    };

    Row const& rowOf(QModelIndex const& index) const { return rows_.at(index.internalId()); }
    Ids const& children(QModelIndex const& parent) const { return parent.isValid() ? rowOf(parent).children : top_; }
    QModelIndex indexOf(std::size_t id, int column = Name) const { return createIndex(rows_.at(id).row, column, id); }
    void makeGroups();
    /// Puts the rows in the order that was chosen.
    void arrange();
    /// Sorts rows of one parent, by a text of theirs or else as in the file, and numbers them.
    void sortRows(Ids& ids, QString Row::*text);
    QString toolTip(QModelIndex const& index) const;

    std::vector<Row> rows_;
    std::size_t objectCount_ = 0;
    Ids top_;
    QHash<QString, std::size_t> byName_;
    Order order_ = Order::File;
    bool isFiltered_ = false;
};

} // namespace Panel
