#include <lattice/ValueMap.hpp>

#include <algorithm>
#include <cstddef>

namespace Kolt {

ValueMap::Entries::const_iterator ValueMap::place(std::string const& name) const {
    return std::lower_bound(entries_.begin(), entries_.end(), name,
                            [](auto const& entry, std::string const& sought) { return entry.first < sought; });
}

ValuePtr ValueMap::getValue(std::string const& name) const {
    auto const found = place(name);
    return found == entries_.end() || found->first != name ? nullptr : found->second;
}

VValueBase const* ValueMap::search(std::string_view name) const {
    auto const found =
        std::find_if(entries_.begin(), entries_.end(), [name](auto const& entry) { return entry.first == name; });
    return found == entries_.end() ? nullptr : found->second.get();
}

void ValueMap::setValue(std::string const& name, ValuePtr const& value) {
    auto const index = place(name) - entries_.cbegin();
    bool const exists = index != static_cast<std::ptrdiff_t>(entries_.size()) && entries_.begin()[index].first == name;
    if (exists && value) {
        entries_[static_cast<std::size_t>(index)].second = value;
        return;
    }
    if (exists)
        entries_.erase(entries_.begin() + index);
    if (!value)
        return;
    names_ |= markOf(name);
    // No more than is needed, as a large network has ten thousand of these maps.
    entries_.reserve(entries_.size() + 1);
    entries_.insert(entries_.begin() + index, {name, value});
}

} // namespace Kolt
