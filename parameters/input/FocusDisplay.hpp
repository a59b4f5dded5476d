#pragma once

#include <QEvent>
#include <QWidget>

namespace Talo {

/// Has a control of an editor show the focus that a mouse gave it, too. Styles show the focus of some controls only
/// after Tab was pressed in the window, but the wheel and the keys edit any control that has the focus. User-interface
/// thread.
void displayFocus(QWidget& widget, QEvent const& event);

} // namespace Talo
