// Its export throws what is no exception class.
#include <lattice/Initialization.hpp>

extern "C" __attribute__((visibility("default"))) bool
TALO_API_2023_MAR_29__throws_a_number(Kolt::VInitialization const*) {
    throw 42;
}
