#pragma once

#include <lattice/PluginUses.hpp>
#include <tessera/Export.hpp>
#include <vector>

namespace Kolt {

/// All widgets and icons that exist and are no notifiers, which are counted as such. While one whose type a plug-in
/// defines lives, the plug-in is not unloaded: this library adds the function to PluginUses when it is loaded.
/// User-interface thread.
TALO_EXPORT std::vector<PluginUses::Use> widgetUses();

} // namespace Kolt
