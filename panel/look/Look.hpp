#pragma once

#include <QPalette>

/// How the panel looks, wherever it runs. User-interface thread.
namespace Panel {

/// The colours of the panel.
enum class Theme {
    System, ///< those of the desktop, light where there is none
    Light,
    Dark
};

/// Gives the application its style, its colours and, where no desktop says which one, its font.
void applyLook(Theme theme);

/// The palette of a theme; that of the system is the one in force.
QPalette themePalette(Theme theme);

/// The side of a window that lines end at: the right one, or the left one in a panel from right to left, as the sides
/// of docks are not mirrored.
inline Qt::DockWidgetArea trailingDockArea(Qt::LayoutDirection direction) {
    return direction == Qt::RightToLeft ? Qt::LeftDockWidgetArea : Qt::RightDockWidgetArea;
}

} // namespace Panel
