#pragma once

#include <lattice/Parameter.hpp>
#include <QJsonObject>

namespace Talo {

// What the sources of Network share.

/// Hands out the reason unless nobody asks for it; false.
inline bool failed(QString* error, QString const& reason) {
    if (error)
        *error = reason;
    return false;
}

/// A pool's name as files write it.
inline QString nameOfPool(Kolt::PoolPtr const& pool) {
    return QString::fromStdString(pool->Name());
}

/// The values of the pools by `convert`; pools without a value of their own, for which `valueIn` gives null, are left
/// out.
template <typename ValueIn, typename Convert>
QJsonObject poolValuesToJson(std::vector<Kolt::PoolPtr> const& pools, ValueIn const& valueIn, Convert const& convert) {
    QJsonObject values;
    for (auto const& pool : pools)
        if (auto const value = valueIn(pool))
            values.insert(nameOfPool(pool), convert(value));
    return values;
}

/// Gives the pools' own values of a parameter: those that it has now, or had when `snapshot` was made.
inline auto poolValuesOf(Kolt::VParameter const& parameter, Kolt::ValueSnapshot const* snapshot = nullptr) {
    return [&parameter, snapshot](Kolt::PoolPtr const& pool) -> Kolt::ValuePtr {
        if (!parameter.keepsValuesPerPool())
            return nullptr;
        if (!snapshot)
            return parameter.getLocalValue(pool, std::string(), false);
        auto const held = snapshot->in(pool);
        return held.isInherited ? nullptr : held.value;
    };
}

} // namespace Talo
