#pragma once

#include <QString>
#include <tessera/Export.hpp>

namespace Talo {

/// What the host says to people, in their language: why a creator was chosen, and why a plug-in could not be loaded or
/// unloaded. The host's libraries without Qt have English sentences alone; those that are known here are translated as
/// a whole, with the names in them as they are. Any other text is returned unchanged. User-interface thread.
TALO_EXPORT QString hostText(QString const& english);

} // namespace Talo
