#pragma once

#include <QAbstractItemView>
#include <QObject>
#include <tessera/Export.hpp>

namespace Talo {

/// Lets an editor whose list takes a choice over when the mouse lets go take those over that are made by keyboard:
/// after a key that changed what is chosen, the list hears of a released mouse button. A child of the list.
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
