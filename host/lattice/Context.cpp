#include <lattice/Context.hpp>

namespace Kolt {

VContext::Addendum::Addendum(PoolPtr const& pool) : pool_(pool) {}

VContext::Addendum::~Addendum() = default;

VContext::VContext(Tessera::StrongPtr<Addendum> const& addendum)
    : pool_(addendum ? addendum->pool() : nullptr), addendum_(addendum) {}

VContext::VContext(PoolPtr const& pool, Tessera::StrongPtr<Addendum> const& addendum)
    : pool_(pool), addendum_(addendum), addendumToBeMade_(!addendum) {}

Tessera::StrongPtr<VContext::Addendum> const& VContext::addendum() const {
    if (addendumToBeMade_) {
        addendum_ = Tessera::StrongPtr<Addendum>(new Addendum(pool_));
        addendumToBeMade_ = false;
    }
    return addendum_;
}

VContext::~VContext() = default;

} // namespace Kolt
