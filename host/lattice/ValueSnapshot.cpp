#include <lattice/ValueSnapshot.hpp>

#include <algorithm>
#include <lattice/Parameter.hpp>

namespace Kolt {

bool EffectiveValue::equals(EffectiveValue const& other) const {
    return value->equals(*other.value);
}

EffectiveValue copyEffectiveValue(VParameter const& parameter, PoolPtr const& pool) {
    return {parameter.effectiveValue(pool)->clone(), !parameter.getLocalValue(pool, std::string(), false)};
}

bool applyValue(VParameter& parameter, PoolPtr const& pool, EffectiveValue const& held) {
    auto local = parameter.getLocalValue(pool, std::string(), false);
    if (!pool && parameter.keepsValuesPerPool())
        return false;
    if (held.isInherited) {
        if (!local || !parameter.keepsValuesPerPool())
            return true;
        parameter.removeLocalValue(pool);
        local = parameter.ownValue();
    } else {
        if (local && local->equals(*held.value))
            return true;
        if (!local)
            local = parameter.getLocalValue(pool, std::string(), true);
        if (!local->assign(*held.value)) {
            if (!parameter.keepsValuesPerPool())
                return false;
            // The pool's value was replaced by one of another type meanwhile.
            local = held.value->clone();
            parameter.setLocalValue(pool, local);
        }
    }
    markValueChanged(parameter, pool);
    parameter.notifyValueChange(local, pool, std::string(), nullptr, nullptr, nullptr);
    if (held.isInherited)
        removeCopyOfOwnValue(parameter, pool);
    return true;
}

void removeCopyOfOwnValue(VParameter& parameter, PoolPtr const& pool) {
    if (!parameter.keepsValuesPerPool())
        return;
    auto const local = parameter.getLocalValue(pool, std::string(), false);
    if (local && local->equals(*parameter.ownValue()))
        parameter.removeLocalValue(pool);
}

ValueSnapshot::ValueSnapshot(VParameter const& parameter) : perPool_(parameter.keepsValuesPerPool()) {
    refresh(parameter);
}

ValueSnapshot::~ValueSnapshot() = default;

std::vector<ValueSnapshot::PoolValue>::const_iterator ValueSnapshot::find(PoolPtr const& pool) const {
    Tessera::WeakPtr<ValuePool> const key(pool);
    return std::find_if(poolValues_.begin(), poolValues_.end(), [&](auto const& each) { return each.pool == key; });
}

EffectiveValue ValueSnapshot::in(PoolPtr const& pool) const {
    auto const found = find(pool);
    return found == poolValues_.end() ? EffectiveValue{own_, perPool_} : EffectiveValue{found->value, false};
}

void ValueSnapshot::refresh(VParameter const& parameter) {
    own_ = parameter.ownValue()->clone();
    poolValues_.clear();
    if (!perPool_)
        return;
    for (auto const& pool : parameter.poolsWithValue())
        refreshIn(parameter, pool);
}

void ValueSnapshot::refreshIn(VParameter const& parameter, PoolPtr const& pool) {
    if (!perPool_) {
        own_ = parameter.ownValue()->clone();
        return;
    }
    auto const found = find(pool);
    if (found != poolValues_.end())
        poolValues_.erase(found);
    if (auto const local = parameter.getLocalValue(pool, std::string(), false))
        poolValues_.push_back({pool, local->clone()});
}

bool ValueSnapshot::isEffectiveIn(VParameter const& parameter, PoolPtr const& pool) const {
    return parameter.effectiveValue(pool)->equals(*in(pool).value);
}

bool ValueSnapshot::isOwnValueOf(VParameter const& parameter) const {
    return parameter.ownValue()->equals(*own_);
}

} // namespace Kolt
