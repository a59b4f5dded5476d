#pragma once

#include <initializer_list>
#include <lattice/Value.hpp>
#include <map>

namespace Kolt {

/// Named switches, ordered by name. A plain value: copies are apart. One thread at a time.
class FlagList {
public:
    using Map = std::map<std::string, bool>;

    FlagList();
    FlagList(std::initializer_list<Map::value_type> flags);
    FlagList(FlagList const&);
    FlagList& operator=(FlagList const&);
    ~FlagList();

    /// The switch of a name, made and off if the name is new.
    bool& operator[](std::string const& name) { return flags_[name]; }
    /// Whether the name is in the list and its switch is on.
    bool isSet(std::string const& name) const;
    bool contains(std::string const& name) const { return flags_.count(name) > 0; }
    std::size_t size() const { return flags_.size(); }
    Map::const_iterator begin() const { return flags_.begin(); }
    Map::const_iterator end() const { return flags_.end(); }
    bool operator==(FlagList const& other) const { return flags_ == other.flags_; }

private:
    Map flags_;
};

using Options = FlagList;

/// The text has a line "name=true" or "name=false" for each flag, in order of the names. A text with any other line is
/// refused. A name that is new is added, flags that the text leaves out stay as they are.
template <>
struct VValueTrait<FlagList> : ValueTraitDefaults<FlagList> {
    static std::string Text(FlagList const& value);
    static bool setValueFromText(FlagList& value, std::string const& text);
};

extern template class VTypedValueBase<FlagList>;
extern template class VValue<FlagList>;

} // namespace Kolt
