#pragma once

#include <initializer_list>
#include <lattice/Value.hpp>
#include <map>
#include <tessera/Export.hpp>

namespace Kolt {

/// Named switches, ordered by name. A plain value: a copy shares nothing with the original. One thread at a time.
/// Prints nothing.
class TALO_EXPORT FlagList {
public:
    /// Flags by name.
    using Map = std::map<std::string, bool>;

    /// An empty list.
    FlagList();
    /// These flags; the first of equal names counts.
    FlagList(std::initializer_list<Map::value_type> flags);
    FlagList(FlagList const&);
    FlagList& operator=(FlagList const&);
    ~FlagList();

    /// The switch of a name; a new name is added with its switch off. The reference stays valid as long as the list.
    bool& operator[](std::string const& name) { return flags_[name]; }
    /// Whether the name is in the list and its switch is on.
    bool isSet(std::string const& name) const;
    /// Whether the name is in the list.
    bool contains(std::string const& name) const { return flags_.count(name) > 0; }
    /// The number of names.
    std::size_t size() const { return flags_.size(); }
    /// The names and their switches, in order of the names.
    Map::const_iterator begin() const { return flags_.begin(); }
    /// Past the last flag.
    Map::const_iterator end() const { return flags_.end(); }
    /// Whether both have the same names with the same switches on.
    bool operator==(FlagList const& other) const { return flags_ == other.flags_; }

private:
    Map flags_;
};

using Options = FlagList;

/// How a list of flags is written. A clone is a copy, and two lists are compared by operator==.
template <>
struct TALO_EXPORT VValueTrait<FlagList> : ValueTraitDefaults<FlagList> {
    /// A line "name=true" or "name=false" for each flag, in order of the names. A line feed in a name is written as
    /// "\n", and a backslash before "n" or another backslash is doubled.
    static std::string Text(FlagList const& value);
    /// Sets the flags that the text names and adds new names; other flags stay as they are. Returns false, and changes
    /// nothing, if the text has any other line.
    static bool setValueFromText(FlagList& value, std::string const& text);
};

extern template class TALO_EXPORT VTypedValueBase<FlagList>;
extern template class TALO_EXPORT VValue<FlagList>;

} // namespace Kolt
