#pragma once

#include <cstdint>
#include <lattice/Value.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Kolt {

/// Named values, ordered by name: the properties of a parameter. Copies of a map share the value objects.
/// User-interface thread. Prints nothing.
class TALO_EXPORT ValueMap {
public:
    /// Names and values.
    using Entries = std::vector<std::pair<std::string, ValuePtr>>;

    /// The value under a name; null if there is none.
    ValuePtr getValue(std::string const& name) const;
    /// The same value without a counted reference. Quick where the map has not the name, as readers ask ten thousand
    /// maps for rare names. Valid until the map changes.
    VValueBase const* find(std::string_view name) const {
        return (names_ & markOf(name)) != 0 ? search(name) : nullptr;
    }
    /// Stores a value under a name and replaces the one that is there. Null removes the name.
    void setValue(std::string const& name, ValuePtr const& value);

    /// The entries, in order of their names; no value is null. Changing the map invalidates the iterators.
    Entries::const_iterator begin() const { return entries_.begin(); }
    /// Past the last property.
    Entries::const_iterator end() const { return entries_.end(); }

private:
    /// One of 64 bits for a name. Two names may have the same bit.
    static constexpr std::uint64_t markOf(std::string_view name) {
        if (name.empty())
            return 1;
        std::uint64_t const first = static_cast<unsigned char>(name.front());
        std::uint64_t const last = static_cast<unsigned char>(name.back());
        return std::uint64_t(1) << ((name.size() + 5 * first + 11 * last) % 64);
    }
    VValueBase const* search(std::string_view name) const;
    Entries::const_iterator place(std::string const& name) const;

    // Sorted. A parameter has a few properties, so a vector takes less memory than a tree and is searched as quickly.
    Entries entries_;
    // The marks of all names that were ever set.
    std::uint64_t names_ = 0;
};

} // namespace Kolt
