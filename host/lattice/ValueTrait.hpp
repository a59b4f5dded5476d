#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <tessera/Export.hpp>
#include <type_traits>
#include <utility>

namespace Kolt {

/// What the traits of all value types share unless one says otherwise.
template <typename T>
struct ValueTraitDefaults {
    /// Whether people edit values of the type, so that edits are undone, reset, copied and pasted. False for what is
    /// triggered or only shown.
    static constexpr bool IsEdited = true;
    /// A copy for another place. A type that refers to something that is changed in place must copy that too.
    static T Clone(T const& value) { return value; }
    /// Whether both are the same value.
    static bool Equal(T const& left, T const& right) { return left == right; }
};

/// Marks the trait of a type that has no text.
struct TextlessTrait {};

/// How values of type T are written as text, read, copied and compared. Texts are UTF-8 and do not depend on the
/// locale. `setValueFromText` returns false and leaves the value alone if the text is no T. The functions have no
/// state and print nothing: any thread.
///
/// A type without a specialisation has no text: it is written as the empty text and is never set from one.
template <typename T>
struct VValueTrait : ValueTraitDefaults<T>, TextlessTrait {
    /// The value as text.
    static std::string Text(T const&) { return {}; }
    /// Reads a value from text; false, and the value unchanged, if the text is none.
    static bool setValueFromText(T&, std::string const&) { return false; }
};

/// Whether people edit values of type T: VValueTrait<T>::IsEdited; true where the trait does not say.
template <typename T, typename = void>
inline constexpr bool IsEditedType = true;
template <typename T>
inline constexpr bool IsEditedType<T, std::void_t<decltype(VValueTrait<T>::IsEdited)>> = VValueTrait<T>::IsEdited;

/// How many bytes a value keeps beside itself: VValueTrait<T>::ByteCount(value); 0 where the trait does not say. What
/// copies of the value share is left out.
template <typename T, typename = void>
struct FurtherBytes {
    /// Of one value.
    static std::size_t of(T const&) { return 0; }
};
/// For types whose trait says it.
template <typename T>
struct FurtherBytes<T, std::void_t<decltype(VValueTrait<T>::ByteCount(std::declval<T const&>()))>> {
    /// Of one value.
    static std::size_t of(T const& value) { return VValueTrait<T>::ByteCount(value); }
};

/// Whether values of type T have a text: VValueTrait is specialised for it.
template <typename T>
inline constexpr bool HasText = !std::is_base_of_v<TextlessTrait, VValueTrait<T>>;

/// Whether values can be of type T. Of the numbers these are bool, int and double; texts are std::string.
template <typename T>
inline constexpr bool IsStorable =
    std::is_arithmetic_v<T> ? std::is_same_v<T, bool> || std::is_same_v<T, int> || std::is_same_v<T, double>
                            : !std::is_pointer_v<T> && !std::is_array_v<T>;

/// Written as "true" and "false"; no other text is read.
template <>
struct TALO_EXPORT VValueTrait<bool> : ValueTraitDefaults<bool> {
    /// The value as text.
    static std::string Text(bool value);
    /// Reads a value from text; false, and the value unchanged, if the text is none.
    static bool setValueFromText(bool& value, std::string const& text);
};

/// Written as a decimal number. The whole text is read: no space, no "+", no separators, and in the range of int.
template <>
struct TALO_EXPORT VValueTrait<int> : ValueTraitDefaults<int> {
    /// The value as text.
    static std::string Text(int value);
    /// Reads a value from text; false, and the value unchanged, if the text is none.
    static bool setValueFromText(int& value, std::string const& text);
};

/// Written as the shortest text that reads back as the same number, or "nan", "inf" and "-inf". The whole text is
/// read; a number beyond the range of double is refused.
template <>
struct TALO_EXPORT VValueTrait<double> : ValueTraitDefaults<double> {
    /// The value as text.
    static std::string Text(double value);
    /// Reads a value from text; false, and the value unchanged, if the text is none.
    static bool setValueFromText(double& value, std::string const& text);
    /// True if the texts are equal: two that are not a number are, zero and minus zero are not.
    static bool Equal(double left, double right);
};

/// Written as the text itself; any bytes are read.
template <>
struct TALO_EXPORT VValueTrait<std::string> : ValueTraitDefaults<std::string> {
    /// The value as text.
    static std::string Text(std::string const& value) { return value; }
    /// Reads a value from text; false, and the value unchanged, if the text is none.
    static bool setValueFromText(std::string& value, std::string const& text);
    /// The characters.
    static std::size_t ByteCount(std::string const& value) { return value.size(); }
    /// The preference name of a one-line text: "OneLine".
    static std::string OneLine();
    /// The preference name of a multi-line text: "MultiLine".
    static std::string MultiLine();
};

/// Written as the one element itself; any bytes are read.
template <>
struct TALO_EXPORT VValueTrait<std::array<std::string, 1>> : ValueTraitDefaults<std::array<std::string, 1>> {
    /// The value as text.
    static std::string Text(std::array<std::string, 1> const& value) { return value[0]; }
    /// Reads a value from text; false, and the value unchanged, if the text is none.
    static bool setValueFromText(std::array<std::string, 1>& value, std::string const& text);
    /// The characters of the element.
    static std::size_t ByteCount(std::array<std::string, 1> const& value) { return value[0].size(); }
};

} // namespace Kolt
