#include <lattice/Object.hpp>

#include <algorithm>

namespace Kolt {

namespace {

// Objects have a few parameters, for which a linear search is faster than a map.
constexpr std::size_t longList = 32;

} // namespace

VObject::VObject(std::string const& name) : VManagedDomainObject<VObject>(name) {}

VObject::~VObject() {
    for (auto const& parameter : parameters_)
        leave(*parameter);
}

void VObject::addParameter(ParameterPtr const& parameter) {
    if (!parameter)
        return;
    parameters_.push_back(parameter);
    places_.reset();
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
    places_.reset();
    parameters_.erase(found);
}

ParameterPtr VObject::findParameter(std::string const& name) const {
    if (parameters_.size() < longList) {
        auto const found = std::find_if(parameters_.begin(), parameters_.end(),
                                        [&](auto const& parameter) { return parameter->Name() == name; });
        return found == parameters_.end() ? nullptr : *found;
    }
    if (!places_) {
        places_ = std::make_unique<std::unordered_map<std::string, std::size_t>>();
        for (std::size_t place = 0; place < parameters_.size(); ++place)
            places_->emplace(parameters_[place]->Name(), place);
    }
    auto const found = places_->find(name);
    return found == places_->end() ? nullptr : parameters_[found->second];
}

void VObject::run(PoolPtr const&) {}

} // namespace Kolt
