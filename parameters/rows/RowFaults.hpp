#pragma once

namespace Talo {

/// From the first call on, the row of an editor that had a fault (Kolt::EditorFaults) shows a sentence instead of it.
/// Further calls change nothing. User-interface thread.
void showFaultsInRows();

} // namespace Talo
