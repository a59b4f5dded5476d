#include <panel/gallery/NotificationCounter.hpp>

#include <parameters/rows/MutedLabel.hpp>

namespace Panel {

NotificationCounter::NotificationCounter(Kolt::ParameterPtr const& parameter, QWidget* parent) : QLabel(parent) {
    if (parameter)
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(this));
    Talo::alignWithLayout(*this);
    showCount();
}

NotificationCounter::~NotificationCounter() {
    stopNotifications();
}

void NotificationCounter::onValueChange(Kolt::ValuePtr const&, Kolt::VContext const&, Kolt::ValueMap const*) {
    ++count_;
    QMetaObject::invokeMethod(this, &NotificationCounter::showCount, Qt::QueuedConnection);
}

void NotificationCounter::showCount() {
    setText(QString::number(count_));
}

} // namespace Panel
