#pragma once

#include <QEvent>
#include <QWidget>

namespace Talo {

/// Shows the tool tip of a widget in an editor as plain text: it comes from the file of a network, and an editor sets
/// it as it is. True if the event is one for such a tool tip and ends here. User-interface thread.
bool showEditorToolTip(QWidget& widget, QEvent& event);

} // namespace Talo
