#pragma once

#include <lattice/Value.hpp>
#include <string>
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
    /// Stores a value under a name and replaces the one that is there. Null removes the name.
    void setValue(std::string const& name, ValuePtr const& value);

    /// The entries, in order of their names; no value is null. Changing the map invalidates the iterators.
    Entries::const_iterator begin() const { return entries_.begin(); }
    /// Past the last property.
    Entries::const_iterator end() const { return entries_.end(); }

private:
    Entries::const_iterator place(std::string const& name) const;

    // Sorted. A parameter has a few properties, so a vector takes less memory than a tree and is searched as quickly.
    Entries entries_;
};

} // namespace Kolt
