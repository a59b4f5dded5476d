// It says that it cannot work with any host.

#include "PlainEditor.hpp"

extern "C" TALO_PLUGIN_EXPORT bool TALO_API_2023_MAR_29__says_no(Kolt::VInitialization const*) {
    return false;
}
