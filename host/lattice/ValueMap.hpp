#pragma once

#include <lattice/Value.hpp>
#include <map>

namespace Kolt {

/// Named values, ordered by name: the properties of a parameter. User-interface thread.
class ValueMap {
public:
    using Map = std::map<std::string, ValuePtr>;

    /// The value under a name; null when nothing stands there.
    ValuePtr getValue(std::string const& name) const;
    /// Puts a value under a name, in place of what stood there. Null takes the name away.
    void setValue(std::string const& name, ValuePtr const& value);
    Map::const_iterator begin() const { return values_.begin(); }
    Map::const_iterator end() const { return values_.end(); }

private:
    Map values_;
};

} // namespace Kolt
