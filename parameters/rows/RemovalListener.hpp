#pragma once

#include <functional>
#include <lattice/Parameter.hpp>

namespace Talo {

/// Calls a function when a parameter is being destroyed, and is silent about its changes. User-interface thread, though
/// changes may be reported on any.
class RemovalListener : private Kolt::ValueNotifier {
public:
    /// REQUIRES: neither is null.
    RemovalListener(Kolt::ParameterPtr const& parameter, std::function<void()> function);
    ~RemovalListener() override;

private:
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* properties) override;
    void onListGone() override;

    std::function<void()> const function_;
};

} // namespace Talo
