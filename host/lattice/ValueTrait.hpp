#pragma once

#include <array>
#include <string>
#include <type_traits>

namespace Kolt {

/// What every type of value shares unless its trait says otherwise.
template <typename T>
struct ValueTraitDefaults {
    /// Whether people edit values of the type, so that edits are undone, reset, copied and pasted. False for what is
    /// triggered or only shown.
    static constexpr bool IsEdited = true;
    /// A copy for another place: what the copy refers to must not be shared where that could be changed in place.
    static T Clone(T const& value) { return value; }
    /// Whether both stand for the same value.
    static bool Equal(T const& left, T const& right) { return left == right; }
};

/// How values of type T are written as text, read, copied and compared. Texts are UTF-8 and do not depend on the
/// locale. `setValueFromText` leaves the value alone and says false when the text is no T. All of it is free of
/// state: any thread.
///
/// The type that no specialisation knows has no text: it reads as the empty text and is never set from one.
template <typename T>
struct VValueTrait : ValueTraitDefaults<T> {
    static std::string Text(T const&) { return {}; }
    static bool setValueFromText(T&, std::string const&) { return false; }
};

/// Whether people edit values of type T: VValueTrait<T>::IsEdited; true where the trait does not say.
template <typename T, typename = void>
constexpr bool IsEditedType = true;
template <typename T>
constexpr bool IsEditedType<T, std::void_t<decltype(VValueTrait<T>::IsEdited)>> = VValueTrait<T>::IsEdited;

/// "true" and "false".
template <>
struct VValueTrait<bool> : ValueTraitDefaults<bool> {
    static std::string Text(bool value);
    static bool setValueFromText(bool& value, std::string const& text);
};

/// Decimal, the whole text.
template <>
struct VValueTrait<int> : ValueTraitDefaults<int> {
    static std::string Text(int value);
    static bool setValueFromText(int& value, std::string const& text);
};

/// The shortest text that reads back as the same number; "nan", "inf" and "-inf" besides.
template <>
struct VValueTrait<double> : ValueTraitDefaults<double> {
    static std::string Text(double value);
    static bool setValueFromText(double& value, std::string const& text);
    /// Two that are not a number count as equal.
    static bool Equal(double left, double right);
};

/// The text itself, any bytes.
template <>
struct VValueTrait<std::string> : ValueTraitDefaults<std::string> {
    static std::string Text(std::string const& value) { return value; }
    static bool setValueFromText(std::string& value, std::string const& text);
    /// The preference name for a text of one line: "OneLine".
    static std::string OneLine();
    /// The preference name for a text of several lines: "MultiLine".
    static std::string MultiLine();
};

/// The one element itself.
template <>
struct VValueTrait<std::array<std::string, 1>> : ValueTraitDefaults<std::array<std::string, 1>> {
    static std::string Text(std::array<std::string, 1> const& value) { return value[0]; }
    static bool setValueFromText(std::array<std::string, 1>& value, std::string const& text);
};

} // namespace Kolt
