#pragma once

#include <array>
#include <lattice/ValueTrait.hpp>

namespace VectorInputs {

/// A direction or a place in space. Its numbers are x, y and z, and finite.
struct Vector3 {
    std::array<double, 3> numbers{}; ///< x, y and z
    /// Whether all numbers are equal.
    bool operator==(Vector3 const& other) const { return numbers == other.numbers; }
};

} // namespace VectorInputs

/// Written as "1 -2.5 0". Exactly three finite numbers with one space between them are read.
template <>
struct Kolt::VValueTrait<VectorInputs::Vector3> : ValueTraitDefaults<VectorInputs::Vector3> {
    /// The value as text.
    static std::string Text(VectorInputs::Vector3 const& vector);
    /// Reads a value from text; false, and the value unchanged, if the text is none.
    static bool setValueFromText(VectorInputs::Vector3& vector, std::string const& text);
};
