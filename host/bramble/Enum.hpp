#pragma once

#include <lattice/Value.hpp>
#include <tessera/StringList.hpp>

namespace Kolt {

/// A value that refers to a list of names, usually a VEnumSelection. Copies share the list.
class Enum {
public:
    Enum() = default;
    explicit Enum(Tessera::StrongPtr<Tessera::StringList> names) : names_(std::move(names)) {}
    /// The list; null for a value that refers to none.
    Tessera::StrongPtr<Tessera::StringList> const& names() const { return names_; }

private:
    Tessera::StrongPtr<Tessera::StringList> names_;
};

/// The text is the selected name; a text that is none of the names is refused. A clone has a list of its own.
template <>
struct VValueTrait<Enum> {
    static std::string Text(Enum const& value);
    static bool setValueFromText(Enum& value, std::string const& text);
    static Enum Clone(Enum const& value);
    /// The same names with the same one selected.
    static bool Equal(Enum const& left, Enum const& right);
};

extern template class VTypedValueBase<Enum>;
extern template class VValue<Enum>;

} // namespace Kolt
