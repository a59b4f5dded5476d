#pragma once

#include <QWidget>
#include <vector>

namespace Talo {

/// The controls in a widget at which Tab stops, in their order.
std::vector<QWidget*> tabStopsIn(QWidget const& widget);

/// Gives the focus to the next Tab stop after `from`, or the previous one before it, that is not in `area`; false if
/// there is none.
bool focusOutside(QWidget const& area, QWidget const& from, bool next);

/// Whether the user works in the widget: it has the focus, or a dialog or a drop-down list of it is open.
bool isInUse(QWidget const& widget);

} // namespace Talo
