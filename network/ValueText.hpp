#pragma once

#include <lattice/Parameter.hpp>
#include <QString>
#include <tessera/Export.hpp>

namespace Talo {

/// A new value object with what the text says, as the type's VValueTrait reads it; what a text leaves open (the entries
/// of a selection, flags that are not named) is as the parameter has it in the pool. Nothing is changed. Null where the
/// text is no value of the type or names a flag that the parameter does not have.
TALO_EXPORT Kolt::ValuePtr valueFromText(Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool,
                                         QString const& text);

} // namespace Talo
