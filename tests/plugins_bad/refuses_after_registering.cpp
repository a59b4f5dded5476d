// Registers two creators, one of which it never unregisters; then it says that it is not compatible.
#include <lattice/Initialization.hpp>
#include <plugins_bad/EmptyCreator.hpp>

static EmptyCreator const creator("unregistered");
static EmptyCreator const* const forgotten = new EmptyCreator("forgotten");

extern "C" __attribute__((visibility("default"))) bool
TALO_API_2023_MAR_29__refuses_after_registering(Kolt::VInitialization const*) {
    return forgotten == nullptr;
}
