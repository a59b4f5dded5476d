#include <plugin/Plugin.hpp>

TALO_PLUGIN(qtalo_inputs);
