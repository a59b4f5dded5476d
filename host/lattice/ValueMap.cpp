#include <lattice/ValueMap.hpp>

namespace Kolt {

ValuePtr ValueMap::getValue(std::string const& name) const {
    auto const found = values_.find(name);
    return found == values_.end() ? nullptr : found->second;
}

void ValueMap::setValue(std::string const& name, ValuePtr const& value) {
    if (value)
        values_[name] = value;
    else
        values_.erase(name);
}

} // namespace Kolt
