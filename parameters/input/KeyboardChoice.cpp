#include <parameters/input/KeyboardChoice.hpp>

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QScopedValueRollback>

namespace Talo {

KeyboardChoice::KeyboardChoice(QAbstractItemView* list) : QObject(list), list_(list) {
    list->installEventFilter(this);
}

KeyboardChoice::~KeyboardChoice() = default;

bool KeyboardChoice::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || passing_ || !list_->selectionModel())
        return QObject::eventFilter(watched, event);
    QPointer<QAbstractItemView> const list(list_);
    // Told by the list itself: to compare all chosen entries takes long where there are many.
    bool isChanged = false;
    auto const told = connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                              [&isChanged] { isChanged = true; });
    {
        QScopedValueRollback<bool> const passing(passing_, true);
        watched->event(event);
    }
    // A key notifies nobody, so list and filter still exist.
    disconnect(told);
    if (!isChanged)
        return true;
    // Beside all entries.
    QPoint const place(-1, -1);
    QMouseEvent release(QEvent::MouseButtonRelease, place, list->viewport()->mapToGlobal(place), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(list->viewport(), &release);
    return true;
}

} // namespace Talo
