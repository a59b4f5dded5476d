#pragma once

#include <QSaveFile>
#include <tessera/Export.hpp>

namespace Talo {

/// Writes what is still buffered and replaces the file in one step. Returns the reason if that fails, as on a full
/// disk; the old file stays then. QSaveFile::commit() alone does not report that the last buffer could not be written.
/// REQUIRES: an open file.
[[nodiscard]] TALO_EXPORT QString commitSaveFile(QSaveFile& file);

} // namespace Talo
