#pragma once

#include <lattice/Value.hpp>
#include <tessera/Export.hpp>

namespace Ferro {

/// A colour as four channels, nominally 0 to 1; other numbers are kept as they are. Opaque black by default.
struct TALO_EXPORT rgba_float_t {
    /// Red, nominally from 0 to 1.
    float red = 0.0F;
    /// Green, nominally from 0 to 1.
    float green = 0.0F;
    /// Blue, nominally from 0 to 1.
    float blue = 0.0F;
    float alpha = 1.0F; ///< 0 is transparent, 1 is opaque
};

} // namespace Ferro

namespace Kolt {

/// How a colour is written and compared. Any thread.
template <>
struct TALO_EXPORT VValueTrait<Ferro::rgba_float_t> : ValueTraitDefaults<Ferro::rgba_float_t> {
    /// Red, green, blue and alpha with a space between them, each the shortest text that reads back as the same number.
    static std::string Text(Ferro::rgba_float_t const& value);
    /// Reads four numbers with at least one space between them. Returns false, and changes nothing, for any other text.
    static bool setValueFromText(Ferro::rgba_float_t& value, std::string const& text);
    /// Compares channel by channel; two that are not a number count as equal.
    static bool Equal(Ferro::rgba_float_t const& left, Ferro::rgba_float_t const& right);
};

extern template class TALO_EXPORT VTypedValueBase<Ferro::rgba_float_t>;
extern template class TALO_EXPORT VValue<Ferro::rgba_float_t>;

} // namespace Kolt
