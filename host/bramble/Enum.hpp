#pragma once

#include <lattice/Value.hpp>
#include <tessera/StringList.hpp>

namespace Kolt {

/// A value that refers to a list of names, usually a VEnumSelection. Copies share the list. The list may be of another
/// class; it then selects nothing. User-interface thread.
class TALO_EXPORT Enum {
public:
    /// A value that refers to no list.
    Enum() = default;
    /// A choice among these names, with none chosen.
    explicit Enum(Tessera::StrongPtr<Tessera::StringList> names) : names_(std::move(names)) {}

    /// The list; null for a value that refers to none.
    Tessera::StrongPtr<Tessera::StringList> const& names() const { return names_; }

private:
    Tessera::StrongPtr<Tessera::StringList> names_;
};

/// How an enumeration is written and compared. A value without a list has an empty text and is never set from one.
template <>
struct TALO_EXPORT VValueTrait<Enum> {
    /// The selected name; empty until one is selected.
    static std::string Text(Enum const& value);
    /// Selects the first place of a name. Returns false, and changes nothing, if the text is none of the names.
    static bool setValueFromText(Enum& value, std::string const& text);
    /// A value with a selection of its own that shares the names.
    static Enum Clone(Enum const& value);
    /// Whether both have the same names and selected the same place.
    static bool Equal(Enum const& left, Enum const& right);
};

extern template class TALO_EXPORT VTypedValueBase<Enum>;
extern template class TALO_EXPORT VValue<Enum>;

} // namespace Kolt
