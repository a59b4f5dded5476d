#pragma once

#include <parameters/rows/EditorCell.hpp>
#include <QString>
#include <tessera/Export.hpp>

namespace Talo {

/// The tool tip of a row, as rich text: label, help, range, unit and keys. Texts of the parameter are shown as they
/// are, a rich help without its tags. User-interface thread.
TALO_EXPORT QString rowToolTip(Kolt::ParameterPtr const& parameter);

/// Which creator made the editor of an open cell and why, as rich text, for programmers. User-interface thread.
TALO_EXPORT QString creatorExplanation(Kolt::VParameter const& parameter, EditorCell const& cell);

/// The line below the name of a row: which pool is edited, or that the parameter is gone, as null says. Empty for a
/// parameter with one value.
TALO_EXPORT QString rowNote(Kolt::ParameterPtr const& parameter, Kolt::PoolPtr const& pool);

/// What screen readers say about each control of a row: object, parameter, type and pool. User-interface thread.
TALO_EXPORT QString controlDescription(QString const& objectName, Kolt::VParameter const& parameter,
                                       Kolt::PoolPtr const& pool);

} // namespace Talo
