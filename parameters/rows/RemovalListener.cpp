#include <parameters/rows/RemovalListener.hpp>

namespace Talo {

RemovalListener::RemovalListener(Kolt::ParameterPtr const& parameter, std::function<void()> function)
    : function_(std::move(function)) {
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(this));
}

RemovalListener::~RemovalListener() {
    stopNotifications();
}

void RemovalListener::onValueChange(Kolt::ValuePtr const&, Kolt::VContext const&, Kolt::ValueMap const*) {}

void RemovalListener::onListGone() {
    function_();
}

} // namespace Talo
