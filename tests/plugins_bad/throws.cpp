// Registers a creator; then its export throws.
#include <lattice/Initialization.hpp>
#include <plugins_bad/EmptyCreator.hpp>
#include <stdexcept>

static EmptyCreator const creator("throws");

extern "C" __attribute__((visibility("default"))) bool TALO_API_2023_MAR_29__throws(Kolt::VInitialization const*) {
    throw std::runtime_error("there is no licence");
}
