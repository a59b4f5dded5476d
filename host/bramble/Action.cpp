#include <bramble/Action.hpp>

#include <lattice/ValueCreator.hpp>

namespace Kolt {

VAction::VAction(std::string name, Handler handler) : name_(std::move(name)), handler_(std::move(handler)) {}

VAction::~VAction() = default;

void VAction::emitAction(PoolPtr const& pool, ParameterPtr const& parameter) {
    // Copies, as the handler may replace itself and delete what the references belong to.
    auto const handler = handler_;
    auto const heldPool = pool;
    auto const heldParameter = parameter;
    if (handler)
        handler(heldPool, heldParameter);
}

std::string VValueTrait<Tessera::StrongPtr<VAction>>::Text(Tessera::StrongPtr<VAction> value) {
    return value ? value->Name() : std::string();
}

bool VValueTrait<Tessera::StrongPtr<VAction>>::setValueFromText(Tessera::StrongPtr<VAction>&, std::string const&) {
    return false;
}

template class VTypedValueBase<Tessera::StrongPtr<VAction>>;
template class VValue<Tessera::StrongPtr<VAction>>;

namespace {

// Makes the type known while the library loads.
[[maybe_unused]] bool const actionIsRegistered = (registerValueCreatorOnce<Tessera::StrongPtr<VAction>>(), true);

} // namespace

} // namespace Kolt
