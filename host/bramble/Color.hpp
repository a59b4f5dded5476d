#pragma once

#include <lattice/Value.hpp>

namespace Ferro {

/// A colour as four channels, red, green, blue and alpha (0 transparent, 1 opaque), each nominally 0 to 1. Opaque
/// black by default.
struct rgba_float_t {
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;
    float alpha = 1.0F;
};

} // namespace Ferro

namespace Kolt {

/// The text is the four channels with blanks between them.
template <>
struct VValueTrait<Ferro::rgba_float_t> : ValueTraitDefaults<Ferro::rgba_float_t> {
    static std::string Text(Ferro::rgba_float_t const& value);
    static bool setValueFromText(Ferro::rgba_float_t& value, std::string const& text);
    /// Channel by channel; two that are not a number count as equal.
    static bool Equal(Ferro::rgba_float_t const& left, Ferro::rgba_float_t const& right);
};

extern template class VTypedValueBase<Ferro::rgba_float_t>;
extern template class VValue<Ferro::rgba_float_t>;

} // namespace Kolt
