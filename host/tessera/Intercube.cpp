#include <tessera/Intercube.hpp>

#include <algorithm>

namespace Tessera {

Intercube::~Intercube() = default;

void Intercube::addInterface(StrongPtr<InterfaceBase> const& interface) const {
    if (interface)
        interfaces_.push_back(interface);
}

StrongPtr<InterfaceBase> Intercube::findInterface(std::type_info const& type) const {
    auto const found = std::find_if(interfaces_.rbegin(), interfaces_.rend(),
                                    [&](auto const& interface) { return interface->interfaceType() == type; });
    return found == interfaces_.rend() ? nullptr : *found;
}

bool Intercube::applyInterfaces(StrongPtr<InterfaceIterationParameter> const& parameter) const {
    auto const walked = interfaces_;
    return std::all_of(walked.begin(), walked.end(),
                       [&](auto const& interface) { return interface->apply_const(*this, parameter); });
}

bool Intercube::applyInterfaces(StrongPtr<InterfaceIterationParameter> const& parameter) {
    auto const walked = interfaces_;
    return std::all_of(walked.begin(), walked.end(),
                       [&](auto const& interface) { return interface->apply(*this, parameter); });
}

} // namespace Tessera
