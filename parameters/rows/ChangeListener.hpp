#pragma once

#include <functional>
#include <lattice/Parameter.hpp>

namespace Talo {

/// Calls a function after each change of a parameter's value, in whatever pool; changes of properties are left out. It
/// is called later than the notifiers that were registered before the listener was made: made after an editor, it finds
/// that the editor shows the change. The function may destroy the listener. User-interface thread.
class ChangeListener : private Kolt::ValueNotifier {
public:
    /// REQUIRES: neither is null.
    ChangeListener(Kolt::ParameterPtr const& parameter, std::function<void()> function);
    ~ChangeListener() override;

private:
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* properties) override;

    std::function<void()> const function_;
};

} // namespace Talo
