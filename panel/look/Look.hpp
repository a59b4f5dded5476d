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

/// How many steps smaller or larger than usual texts can be.
constexpr int SmallestText = -3;
constexpr int LargestText = 8;

/// Gives the application its style, its colours and, where no desktop says which one, its font.
void applyLook(Theme theme);

/// Gives the application the colours of a theme while it runs. Those of the system follow the desktop again.
void setTheme(Theme theme);
/// The theme that was set last; that of the system at first.
Theme theme();
/// Makes all texts larger than usual by a number of steps, or smaller by a negative one; 0 is the usual size. Numbers
/// out of range count as the nearest one.
void setTextSize(int steps);
/// The number of steps that was set last; 0 at first.
int textSize();

/// The palette of a theme; that of the system is the one in force.
QPalette themePalette(Theme theme);

/// The side of a window that lines end at: the right one, or the left one in a panel from right to left, as the sides
/// of docks are not mirrored.
inline Qt::DockWidgetArea trailingDockArea(Qt::LayoutDirection direction) {
    return direction == Qt::RightToLeft ? Qt::LeftDockWidgetArea : Qt::RightDockWidgetArea;
}

} // namespace Panel
