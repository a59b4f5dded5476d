#pragma once

#include <lattice/Parameter.hpp>

namespace Kolt {

/// The type that a value must have so that an editor of the parameter's declared type can edit it, if the value that is
/// effective in the pool is of another type and every edit would be lost; empty otherwise. This is so for an array of
/// one text, whose editor edits a std::string: the parameter is to be declared as the array and to hold a std::string.
/// Names are readable ones (Tessera::Typename).
[[nodiscard]] TALO_EXPORT std::string missingValueType(VParameter const& parameter, PoolPtr const& pool);

} // namespace Kolt
