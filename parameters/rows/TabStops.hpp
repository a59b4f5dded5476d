#pragma once

#include <QWidget>
#include <tessera/Export.hpp>
#include <vector>

namespace Talo {

/// The controls in a widget at which Tab stops, in their order.
TALO_EXPORT std::vector<QWidget*> tabStopsIn(QWidget const& widget);

/// Gives the focus to the next Tab stop after `from`, or the previous one before it, that is not in `area`; false if
/// there is none.
TALO_EXPORT bool focusOutside(QWidget const& area, QWidget const& from, bool next);

/// Whether the user works in the widget: it has the focus, or a dialog or a drop-down list of it is open.
TALO_EXPORT bool isInUse(QWidget const& widget);

} // namespace Talo
