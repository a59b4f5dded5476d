// It does not say that it was loaded.

#include "PlainEditor.hpp"

extern "C" TALO_PLUGIN_EXPORT bool TALO_API_2023_MAR_29__reports_nothing(Kolt::VInitialization const*) {
    return true;
}
