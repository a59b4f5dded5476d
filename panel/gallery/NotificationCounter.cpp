#include <panel/gallery/NotificationCounter.hpp>

#include <parameters/rows/MutedLabel.hpp>

namespace Panel {

NotificationCounter::NotificationCounter(Kolt::ParameterPtr const& parameter, QWidget* parent)
    : QLabel(parent), parameterName_(parameter ? QString::fromStdString(parameter->Name()) : QString()) {
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
    setAccessibleName(tr("Notifications of %1: %2").arg(parameterName_, text()));
}

} // namespace Panel
