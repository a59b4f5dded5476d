#include <fractal/objects/ParameterWatch.hpp>

namespace Fractal {

ParameterWatch::ParameterWatch(QObject* parent) : QObject(parent) {}

ParameterWatch::~ParameterWatch() {
    stopNotifications();
}

void ParameterWatch::watch(Kolt::ParameterPtr const& parameter) {
    if (parameter)
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(this));
}

void ParameterWatch::onValueChange(Kolt::ValuePtr const&, Kolt::VContext const&, Kolt::ValueMap const*) {
    if (!isWaiting_.exchange(true))
        QMetaObject::invokeMethod(this, &ParameterWatch::notify, Qt::QueuedConnection);
}

void ParameterWatch::notify() {
    isWaiting_ = false;
    emit changed();
}

} // namespace Fractal
