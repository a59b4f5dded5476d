#pragma once

#include <lattice/Parameter.hpp>
#include <QJsonObject>
#include <QString>
#include <tessera/Export.hpp>

namespace Talo {

/// A value that was read for a parameter.
struct TALO_EXPORT TypedValue {
    Kolt::ValuePtr value; ///< null when what was read does not fit
    /// Why it does not fit, a part of a sentence; empty where it is of another type.
    QString reason;
};

/// What is effective in a pool as JSON that names its type: {"type": ..., "value": ...}, as network files write both.
/// Empty for what no file can hold.
TALO_EXPORT QJsonObject typedJson(Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool);

/// A new value for the parameter from JSON that typedJson() wrote, for this parameter or another one. A selection keeps
/// the entries that the parameter has in the pool; flags must be the same.
TALO_EXPORT TypedValue valueFromTypedJson(QByteArray const& json, Kolt::VParameter const& parameter,
                                          Kolt::PoolPtr const& pool);

} // namespace Talo
