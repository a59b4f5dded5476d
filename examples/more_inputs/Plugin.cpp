#include <plugin/Plugin.hpp>

TALO_PLUGIN(more_inputs);
