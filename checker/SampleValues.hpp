#pragma once

#include <functional>
#include <lattice/Value.hpp>
#include <string>

namespace Checker {

/// Makes the n-th of three values, 0 to 2.
using ValueMaker = std::function<Kolt::ValuePtr(int)>;

/// Makes values of a type, by its readable name (Tessera::Typename): of the host's types three different ones; of a
/// plug-in's own type what its value creator makes, changed by texts that its trait reads, as far as it reads some.
/// Empty for a type that nobody can make.
ValueMaker sampleValues(std::string const& typeName);

/// Whether each of the three values differs from the one before, so that each is a change.
bool areDifferent(ValueMaker const& make);

} // namespace Checker
