#pragma once

#include <QIcon>

namespace Panel {

/// The icon of the program, in all sizes that the desktop knows. Needs the application object.
QIcon programIcon();

} // namespace Panel
