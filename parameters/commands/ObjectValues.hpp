#pragma once

#include <lattice/Object.hpp>
#include <QJsonObject>
#include <QStringList>
#include <tessera/Export.hpp>

namespace Talo {

/// The values of an object that are effective in a pool and that people may change, by the names of their parameters,
/// each as typedJson() writes it.
TALO_EXPORT QJsonObject objectValues(Kolt::VObject const& object, Kolt::PoolPtr const& pool);

/// Makes such values effective in a pool, of this object or of another one, as one undo step. Each parameter takes its
/// value or stays as it is. Returns the values that were not taken, as "name: reason". Notifiers may delete the object
/// meanwhile.
[[nodiscard]] TALO_EXPORT QStringList applyObjectValues(Kolt::ObjectPtr const& object, Kolt::PoolPtr const& pool,
                                                        QJsonObject const& values);

} // namespace Talo
