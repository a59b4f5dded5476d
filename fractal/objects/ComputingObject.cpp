#include <fractal/objects/ComputingObject.hpp>

namespace Fractal {

ComputingObject::ComputingObject(std::string const& name) : VObject(name) {}

ComputingObject::~ComputingObject() = default;

void ComputingObject::readFiles(FractalSettings&, Kolt::PoolPtr const&) {}

bool ComputingObject::shapesPicture() const {
    return true;
}

Kolt::ValuePtr ComputingObject::value(char const* parameter, Kolt::PoolPtr const& pool) const {
    return effectiveValue(findParameter(parameter), pool);
}

Kolt::ValuePtr effectiveValue(Kolt::ParameterPtr const& parameter, Kolt::PoolPtr const& pool) {
    return parameter ? parameter->effectiveValue(pool) : nullptr;
}

} // namespace Fractal
