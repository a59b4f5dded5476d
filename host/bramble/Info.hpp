#pragma once

#include <bramble/HarmlessText.hpp>
#include <lattice/Value.hpp>
#include <tessera/Export.hpp>

namespace Kolt {

/// A text that informs the user: people read it, they do not edit it. UTF-8, empty by default; it may be rich text. A
/// plain value; one thread at a time.
struct TALO_EXPORT info {
    info() = default;
    /// Labels show the text as it is, so only what is harmless is taken over (harmlessText).
    explicit info(std::string const& shown) : text(harmlessText(shown)) {}

    std::string text; ///< any number of lines
    /// Whether the texts are the same.
    bool operator==(info const& other) const { return text == other.text; }
};

/// How the information is written: as the text itself.
template <>
struct TALO_EXPORT VValueTrait<info> : ValueTraitDefaults<info> {
    /// People do not edit values of the type.
    static constexpr bool IsEdited = false;
    /// The text.
    static std::string Text(info const& value) { return value.text; }
    /// Replaces the text; every text is accepted, as by the constructor.
    static bool setValueFromText(info& value, std::string const& text);
};

extern template class TALO_EXPORT VTypedValueBase<info>;
extern template class TALO_EXPORT VValue<info>;

} // namespace Kolt
