#pragma once

#include <QWidget>
#include <tessera/Export.hpp>

namespace Talo {

/// Writes a typed text that waits for its field to be left, if such a field of a GestureTarget has or last had the
/// focus in the window, and ends the gesture that goes on. The field keeps the focus. A notifier of the written value
/// may delete the field.
TALO_EXPORT void commitPendingEdit(QWidget& window);

/// Does so in every window of the program.
TALO_EXPORT void commitPendingEdits();

} // namespace Talo
