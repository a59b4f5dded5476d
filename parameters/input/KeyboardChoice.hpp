#pragma once

#include <QAbstractItemView>
#include <QObject>
#include <tessera/Export.hpp>

namespace Talo {

/// Some list editors commit only on mouse release. After a key changed the selection, sends such a list a release so
/// that it commits. A child of the list.
class TALO_EXPORT KeyboardChoice : public QObject {
    Q_OBJECT

public:
    /// A child of the list, which owns it.
    explicit KeyboardChoice(QAbstractItemView* list);
    ~KeyboardChoice() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAbstractItemView* const list_;
    // While the list handles a key.
    bool passing_ = false;
};

} // namespace Talo
