#include <lattice/Object.hpp>

#include <algorithm>

namespace Kolt {

VObject::VObject(std::string const& name) : VManagedDomainObject<VObject>(name) {}

VObject::~VObject() {
    for (auto const& parameter : parameters_)
        leave(*parameter);
}

void VObject::addParameter(ParameterPtr const& parameter) {
    if (!parameter)
        return;
    parameters_.push_back(parameter);
    parameter->object_ = this;
}

void VObject::leave(VParameter& parameter) const {
    // Another object may have it, too.
    if (parameter.object_ == this)
        parameter.object_ = nullptr;
}

void VObject::removeParameter(ParameterPtr const& parameter) {
    // Destroyed last: its destruction may use the list.
    auto const held = parameter;
    auto const found = std::find(parameters_.begin(), parameters_.end(), held);
    if (found == parameters_.end())
        return;
    leave(*held);
    parameters_.erase(found);
}

ParameterPtr VObject::findParameter(std::string const& name) const {
    auto const found = std::find_if(parameters_.begin(), parameters_.end(),
                                    [&](auto const& parameter) { return parameter->Name() == name; });
    return found == parameters_.end() ? nullptr : *found;
}

void VObject::run(PoolPtr const&) {}

} // namespace Kolt
