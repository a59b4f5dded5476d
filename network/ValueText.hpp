#pragma once

#include <lattice/Parameter.hpp>
#include <QString>

namespace Talo {

/// A new value object with what the text says, as the type's VValueTrait reads it; what a text leaves open (the entries
/// of a selection, flags that are not named) is as the parameter has it in the pool. Nothing is changed. Null where the
/// text is no value of the type or names a flag that the parameter does not have.
Tessera::StrongPtr<Kolt::VValueBase>
valueFromText(Kolt::VParameter const& parameter, Tessera::StrongPtr<Kolt::ValuePool> const& pool, QString const& text);

} // namespace Talo
