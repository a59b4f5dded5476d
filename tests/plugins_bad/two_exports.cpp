// Has the exports of two plug-ins.
#include <lattice/Initialization.hpp>

extern "C" __attribute__((visibility("default"))) bool
TALO_API_2023_MAR_29__two_exports(Kolt::VInitialization const* host) {
    return host->IsCompatible("TALO_API_VERSION");
}

extern "C" __attribute__((visibility("default"))) bool
TALO_API_2023_MAR_29__second_export(Kolt::VInitialization const* host) {
    return host->IsCompatible("TALO_API_VERSION");
}
