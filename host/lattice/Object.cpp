#include <lattice/Object.hpp>

#include <algorithm>

namespace Kolt {

VObject::VObject(std::string const& name) : VManagedDomainObject<VObject>(name) {}

VObject::~VObject() = default;

void VObject::addParameter(ParameterPtr const& parameter) {
    if (parameter)
        parameters_.push_back(parameter);
}

void VObject::removeParameter(ParameterPtr const& parameter) {
    // Destroyed last: its destruction may use the list.
    auto const held = parameter;
    parameters_.erase(std::remove(parameters_.begin(), parameters_.end(), held), parameters_.end());
}

ParameterPtr VObject::findParameter(std::string const& name) const {
    auto const found = std::find_if(parameters_.begin(), parameters_.end(),
                                    [&](auto const& parameter) { return parameter->Name() == name; });
    return found == parameters_.end() ? nullptr : *found;
}

void VObject::run(PoolPtr const&) {}

} // namespace Kolt
