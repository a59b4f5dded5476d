#include <tessera/Interface.hpp>

namespace Tessera {

InterfaceBase::~InterfaceBase() = default;

bool InterfaceBase::apply_const(Intercube const& carrier,
                                StrongPtr<InterfaceIterationParameter> const& parameter) const {
    return !parameter || parameter->visit(carrier, *this);
}

bool InterfaceBase::apply(Intercube& carrier, StrongPtr<InterfaceIterationParameter> const& parameter) {
    return !parameter || parameter->visit(carrier, *this);
}

} // namespace Tessera
