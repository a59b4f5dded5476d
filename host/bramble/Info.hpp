#pragma once

#include <lattice/Value.hpp>

namespace Kolt {

/// A text that informs the user. UTF-8.
struct info {
    std::string text;
    bool operator==(info const& other) const { return text == other.text; }
};

/// The text itself.
template <>
struct VValueTrait<info> : ValueTraitDefaults<info> {
    static std::string Text(info const& value) { return value.text; }
    static bool setValueFromText(info& value, std::string const& text);
};

extern template class VTypedValueBase<info>;
extern template class VValue<info>;

} // namespace Kolt
