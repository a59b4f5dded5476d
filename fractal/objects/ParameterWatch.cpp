#include <fractal/objects/ParameterWatch.hpp>

namespace Fractal {

ParameterWatch::ParameterWatch(QObject* parent) : QObject(parent) {}

ParameterWatch::~ParameterWatch() {
    leaveDelivery();
}

void ParameterWatch::watch(Kolt::ParameterPtr const& parameter) {
    if (parameter)
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(this));
}

void ParameterWatch::onValueChange(Tessera::StrongPtr<Kolt::VValueBase> const&, Kolt::VContext const&,
                                   Kolt::ValueMap const*) {
    if (!isWaiting_.exchange(true))
        QMetaObject::invokeMethod(this, &ParameterWatch::tell, Qt::QueuedConnection);
}

void ParameterWatch::tell() {
    isWaiting_ = false;
    emit changed();
}

} // namespace Fractal
