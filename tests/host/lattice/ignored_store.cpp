// Must not compile: the result, which says whether the value was stored, is ignored.

#include <lattice/Parameter.hpp>

void ignoreTheResult(Kolt::VParameter const& parameter) {
    Kolt::setParameterValue(parameter, 1, nullptr, "", false, nullptr, nullptr);
}
