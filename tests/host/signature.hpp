#pragma once

/// True for a function or member function that converts to the type Signature, which picks among overloads. It is a
/// compile error where the name exists with another signature only.
template <typename Signature>
constexpr bool hasSignature(Signature) {
    return true;
}
