#include <lattice/Initialization.hpp>

/// The plug-in's one door: says whether it can work with the host that stands behind `host`, which must not be null.
/// The host finds it by this name, which carries the date of the interface, and calls it once after loading, on the
/// loading thread. Nothing is kept.
extern "C" __attribute__((visibility("default"))) bool
TALO_API_2023_MAR_29__qtalo_inputs(Kolt::VInitialization const* host) {
    return host->IsCompatible("TALO_API_VERSION");
}
