#pragma once

#include <lattice/Value.hpp>
#include <map>

namespace Kolt {

/// Named values, ordered by name: the properties of a parameter. Copies of a map share the value objects.
/// User-interface thread. Prints nothing.
class TALO_EXPORT ValueMap {
public:
    /// Values by name.
    using Map = std::map<std::string, ValuePtr>;

    /// The value under a name; null if there is none.
    ValuePtr getValue(std::string const& name) const;
    /// Stores a value under a name and replaces the one that is there. Null removes the name.
    void setValue(std::string const& name, ValuePtr const& value);

    /// The entries, in order of their names; no value is null. Changing the map invalidates only the iterators to
    /// removed entries.
    Map::const_iterator begin() const { return values_.begin(); }
    /// Past the last property.
    Map::const_iterator end() const { return values_.end(); }

private:
    Map values_;
};

} // namespace Kolt
