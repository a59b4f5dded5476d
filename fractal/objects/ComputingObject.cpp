#include <fractal/objects/ComputingObject.hpp>

namespace Fractal {

ComputingObject::ComputingObject(std::string const& name) : VObject(name) {}

ComputingObject::~ComputingObject() = default;

bool ComputingObject::shapesPicture() const {
    return true;
}

Tessera::StrongPtr<Kolt::VValueBase> ComputingObject::value(char const* parameter, PoolPtr const& pool) const {
    return heldValue(findParameter(parameter), pool);
}

Tessera::StrongPtr<Kolt::VValueBase> heldValue(Kolt::ParameterPtr const& parameter, PoolPtr const& pool) {
    if (!parameter)
        return nullptr;
    auto const local = parameter->getLocalValue(pool, std::string(), false);
    return local ? local : parameter->ownValue();
}

} // namespace Fractal
