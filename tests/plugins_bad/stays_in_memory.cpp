// Is linked so that the system never unloads it.
#include <lattice/Initialization.hpp>
#include <plugins_bad/EmptyCreator.hpp>

static EmptyCreator const creator("stays");

extern "C" __attribute__((visibility("default"))) bool
TALO_API_2023_MAR_29__stays_in_memory(Kolt::VInitialization const* host) {
    return host->IsCompatible("TALO_API_VERSION");
}
