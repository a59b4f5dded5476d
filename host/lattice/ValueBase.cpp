#include <lattice/ValueBase.hpp>

namespace Kolt {

struct VValueBase::Origin {
    Tessera::WeakPtr<VValueBase> container;
    Tessera::WeakPtr<VManagedObject, VManagedObjectBase> source;
};

VValueBase::VValueBase() = default;

VValueBase::~VValueBase() = default;

bool VValueBase::isEdited() const {
    return true;
}

std::size_t VValueBase::byteCount() const {
    return sizeof *this;
}

Tessera::StrongPtr<Tessera::InterfaceBase> VValueBase::getInterface() const {
    return nullptr;
}

VValueBase::Origin& VValueBase::origin() {
    if (!origin_)
        origin_ = std::make_unique<Origin>();
    return *origin_;
}

void VValueBase::setContainerValue(Tessera::WeakPtr<VValueBase> const& container) {
    origin().container = container;
}

Tessera::WeakPtr<VValueBase> VValueBase::containerValue() const {
    return origin_ ? origin_->container : nullptr;
}

void VValueBase::setSource(Tessera::WeakPtr<VManagedObject, VManagedObjectBase> const& source) {
    origin().source = source;
}

Tessera::WeakPtr<VManagedObject, VManagedObjectBase> VValueBase::source() const {
    return origin_ ? origin_->source : nullptr;
}

} // namespace Kolt
