#pragma once

/// True for a function or member function that converts to the type Signature, which selects the overload. Does not
/// compile if the name exists only with other signatures.
template <typename Signature>
constexpr bool hasSignature(Signature) {
    return true;
}
