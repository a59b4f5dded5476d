#pragma once

#include <lattice/PluginUses.hpp>
#include <tessera/Export.hpp>
#include <vector>

namespace Kolt {

/// The handlers of all actions in the values of all objects' parameters. While the code of one is a plug-in's, the
/// plug-in is not unloaded: this library has the function asked (PluginUses) while it is loaded. User-interface thread.
TALO_EXPORT std::vector<PluginUses::Use> actionUses();

} // namespace Kolt
