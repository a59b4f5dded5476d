#include "support/PluginFile.hpp"

char const* const pluginFile = TALO_PLUGIN_FILE;
