#pragma once

#include <lattice/Object.hpp>
#include <QString>
#include <QStringList>
#include <tessera/Export.hpp>
#include <vector>

namespace Talo {

/// Puts the values of objects on the clipboard that are effective in a pool (objectValues); as plain text with a line
/// "object.parameter = value" each.
TALO_EXPORT void copyObjects(std::vector<Kolt::ObjectPtr> const& objects, Kolt::PoolPtr const& pool);

/// The same for the parameters of one section of an object (parametersInSection).
TALO_EXPORT void copySection(Kolt::ObjectPtr const& object, QString const& title, Kolt::PoolPtr const& pool);

/// Whether values of objects are on the clipboard.
TALO_EXPORT bool canPasteObjects();

/// Makes the values on the clipboard effective in a pool, as one undo step. Those of one object go to all of these
/// objects; those of several go to as many objects in their order, and otherwise to the objects of the same names.
/// Returns what was not taken, a sentence each.
[[nodiscard]] TALO_EXPORT QStringList pasteObjects(std::vector<Kolt::ObjectPtr> const& objects,
                                                   Kolt::PoolPtr const& pool);

} // namespace Talo
