// It exports the functions of two plug-ins.

#include "PlainEditor.hpp"

PLANT(PlainEditor, two_exports);

extern "C" __attribute__((visibility("default"))) bool TALO_API_2023_MAR_29__another(Kolt::VInitialization const*) {
    return true;
}
