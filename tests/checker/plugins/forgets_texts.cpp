// Its own type reads another value from a text than the one that wrote it.

#include "OwnLength.hpp"
#include "PlainEditor.hpp"

template <>
struct Kolt::VValueTrait<Length> : Kolt::ValueTraitDefaults<Length> {
    static std::string Text(Length const& length) { return std::to_string(length.metres); }
    static bool setValueFromText(Length& length, std::string const& text) {
        length.metres = text.size() < 3 ? std::stod(text) : 0;
        return true;
    }
};

namespace {

TALO_STATIC_CREATOR Kolt::TypedValueFormat<Length> const format("length");

} // namespace

PLANT(PlainEditor, forgets_texts);
