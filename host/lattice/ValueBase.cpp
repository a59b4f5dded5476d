#include <lattice/ValueBase.hpp>

namespace Kolt {

VValueBase::VValueBase() = default;

VValueBase::~VValueBase() = default;

bool VValueBase::isEdited() const {
    return true;
}

Tessera::StrongPtr<Tessera::InterfaceBase> VValueBase::getInterface() const {
    return nullptr;
}

void VValueBase::setContainerValue(Tessera::WeakPtr<VValueBase> const& container) {
    container_ = container;
}

void VValueBase::setSource(Tessera::WeakPtr<VManagedObject, VManagedObjectBase> const& source) {
    source_ = source;
}

} // namespace Kolt
