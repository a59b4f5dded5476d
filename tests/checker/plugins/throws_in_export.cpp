// Its export throws.

#include "PlainEditor.hpp"
#include <stdexcept>

extern "C" TALO_PLUGIN_EXPORT bool TALO_API_2023_MAR_29__throws_in_export(Kolt::VInitialization const*) {
    throw std::runtime_error("planted");
}
