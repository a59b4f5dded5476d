#include <parameters/rows/ChangeListener.hpp>

namespace Talo {

ChangeListener::ChangeListener(Kolt::ParameterPtr const& parameter, std::function<void()> function)
    : function_(std::move(function)) {
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(this));
}

ChangeListener::~ChangeListener() {
    stopNotifications();
}

void ChangeListener::onValueChange(Kolt::ValuePtr const&, Kolt::VContext const&, Kolt::ValueMap const* properties) {
    if (properties)
        return;
    // A copy, as the function may destroy the listener.
    auto const function = function_;
    function();
}

} // namespace Talo
