// Files give back another value of its own type than they were given.

#include "OwnLength.hpp"
#include "PlainEditor.hpp"

template <>
struct Kolt::VValueTrait<Length> : Kolt::ValueTraitDefaults<Length> {
    static std::string Text(Length const& length) { return std::to_string(length.metres); }
    static bool setValueFromText(Length& length, std::string const& text) {
        char* end = nullptr;
        length.metres = std::strtod(text.c_str(), &end);
        return end != text.c_str();
    }
};

namespace {

std::string toJson(Length const& length) {
    return std::to_string(static_cast<int>(length.metres));
}

std::optional<Length> fromJson(std::string const& json) {
    return Length{std::stod(json) + 1};
}

TALO_STATIC_CREATOR Kolt::TypedValueFormat<Length> const format("length", "a number", toJson, fromJson);

} // namespace

PLANT(PlainEditor, forgets_in_files);
