#pragma once

#include <QPixmap>
#include <QString>

namespace Kolt {

/// Reads the picture of an icon: a regular file of at most 16 MB with a picture of at most 4096 x 4096 points, whose
/// size its format says in advance. A picture larger than 256 x 256 points is read at that size, with its proportions.
/// Null for any other file, for a drawing that names other files, and for a compressed drawing. A file that has not
/// changed is not read again. User-interface thread. Prints nothing.
[[nodiscard]] QPixmap readIconFile(QString const& file);

} // namespace Kolt
