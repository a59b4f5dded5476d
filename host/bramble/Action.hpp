#pragma once

#include <functional>
#include <lattice/Parameter.hpp>
#include <lattice/Value.hpp>

namespace Kolt {

/// Something that can be triggered, such as the command behind a button. Values refer to an action; copies and clones
/// of a value share it. User-interface thread. Prints nothing.
class TALO_EXPORT VAction : public Tessera::ReferenceBase<VAction> {
public:
    /// What the action does in a pool for a parameter. Both are null if the caller has none.
    using Handler = std::function<void(PoolPtr const&, ParameterPtr const&)>;

    /// An action without a handler does nothing.
    explicit VAction(std::string name = {}, Handler handler = {});
    ~VAction() override;

    /// The name, UTF-8; fixed when the action is made.
    std::string const& Name() const { return name_; }
    /// Replaces the handler; an empty one makes the action do nothing.
    void setHandler(Handler handler) { handler_ = std::move(handler); }
    /// The type of the function object that is the handler; typeid(void) for none.
    std::type_info const& handlerType() const { return handler_.target_type(); }
    /// Calls the handler, if there is one, and passes on what it throws. The handler may delete anything, the action
    /// included, and may set another handler.
    void emitAction(PoolPtr const& pool, ParameterPtr const& parameter);

private:
    std::string name_;
    Handler handler_;
};

/// How a reference to an action is written. Two references are equal if they refer to the same action.
template <>
struct TALO_EXPORT VValueTrait<Tessera::StrongPtr<VAction>> : ValueTraitDefaults<Tessera::StrongPtr<VAction>> {
    /// People do not edit values of the type.
    static constexpr bool IsEdited = false;
    /// The action's name; empty for null.
    static std::string Text(Tessera::StrongPtr<VAction> value);
    /// Returns false and changes nothing: no text makes an action.
    static bool setValueFromText(Tessera::StrongPtr<VAction>& value, std::string const& text);
};

extern template class TALO_EXPORT VTypedValueBase<Tessera::StrongPtr<VAction>>;
extern template class TALO_EXPORT VValue<Tessera::StrongPtr<VAction>>;

} // namespace Kolt
