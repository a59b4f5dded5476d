#include <lattice/Input.hpp>

namespace Kolt {

VInputBase::VInputBase(ParameterRef const& owner) : owner_(owner) {}

VInputBase::~VInputBase() = default;

void VInputBase::activateNotification() const {
    if (auto const parameter = owner_.strong())
        parameter->addNotifier(Tessera::WeakPtr<ValueNotifier>(const_cast<VInputBase*>(this)));
}

} // namespace Kolt
