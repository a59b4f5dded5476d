#pragma once

#include <panel/window/ObjectModel.hpp>
#include <QPushButton>

namespace Panel {

class ObjectList;

/// The list of objects below a button that chooses its order. User-interface thread.
class ObjectColumn : public QWidget {
    Q_OBJECT

public:
    /// Takes the list over.
    explicit ObjectColumn(ObjectList* list, QWidget* parent = nullptr);
    ~ObjectColumn() override;

private:
    void addOrder(ObjectModel::Order order, char const* name, QString const& text);
    void showOrder(ObjectModel::Order order);

    ObjectList* const list_;
    QPushButton* const button_;
};

} // namespace Panel
