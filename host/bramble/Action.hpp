#pragma once

#include <functional>
#include <lattice/Parameter.hpp>
#include <lattice/Value.hpp>

namespace Kolt {

/// Something that can be fired. Values refer to it; copies share it. User-interface thread.
class VAction : public Tessera::ReferenceBase<VAction> {
public:
    /// What happens when the action is fired in a pool for a parameter; both may be null.
    using Handler = std::function<void(PoolPtr const&, ParameterPtr const&)>;

    explicit VAction(std::string name = {}, Handler handler = {});
    ~VAction() override;

    std::string const& Name() const { return name_; }
    void setHandler(Handler handler) { handler_ = std::move(handler); }
    /// Calls the handler; without one nothing happens. The handler may delete anything, the action included.
    void emitAction(PoolPtr const& pool, ParameterPtr const& parameter);

private:
    std::string name_;
    Handler handler_;
};

/// The text is the action's name, empty for no action. No text makes an action.
template <>
struct VValueTrait<Tessera::StrongPtr<VAction>> : ValueTraitDefaults<Tessera::StrongPtr<VAction>> {
    static std::string Text(Tessera::StrongPtr<VAction> value);
    static bool setValueFromText(Tessera::StrongPtr<VAction>& value, std::string const& text);
};

extern template class VTypedValueBase<Tessera::StrongPtr<VAction>>;
extern template class VValue<Tessera::StrongPtr<VAction>>;

} // namespace Kolt
