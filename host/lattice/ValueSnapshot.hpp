#pragma once

#include <lattice/Value.hpp>
#include <lattice/ValuePool.hpp>
#include <vector>

namespace Kolt {

class VParameter;

/// What holds for a parameter in a pool at some moment.
struct EffectiveValue {
    /// A copy, which nobody changes; never null for a living parameter.
    ValuePtr value;
    /// Whether the pool has no value of its own, so that the parameter's own one holds. Never for a parameter with one
    /// value.
    bool isInherited = false;

    /// Whether both have the same value, wherever it stands.
    bool equals(EffectiveValue const& other) const;
};

/// What holds now.
EffectiveValue copyEffectiveValue(VParameter const& parameter, PoolPtr const& pool);

/// Makes the value hold: stores a copy of it, or takes the pool's value away where the held one falls back, marks what
/// holds then as changed and tells everybody, without a source. Where it holds already nothing happens. False, and
/// nothing stored, where there is no place for the value: the parameter keeps values per pool and there is no pool, or
/// the parameter's own value is of another type. The caller keeps the parameter alive.
bool applyValue(VParameter& parameter, PoolPtr const& pool, EffectiveValue const& held);

/// Copies of what a parameter held at some moment: its own value and those of its pools. User-interface thread.
class ValueSnapshot {
public:
    explicit ValueSnapshot(VParameter const& parameter);
    ~ValueSnapshot();

    /// What held in a pool.
    EffectiveValue in(PoolPtr const& pool) const;
    /// Takes everything anew.
    void refresh(VParameter const& parameter);
    /// Takes anew what holds in a pool, and nothing else, as a copy of a long list takes a while.
    void refreshIn(VParameter const& parameter, PoolPtr const& pool);
    /// Whether the same value holds in the pool now. A value that the pool got since and that equals what held before
    /// counts as the same.
    bool isEffectiveIn(VParameter const& parameter, PoolPtr const& pool) const;
    /// Whether the parameter itself holds the same value now.
    bool isOwnValueOf(VParameter const& parameter) const;

private:
    struct PoolValue {
        Tessera::WeakPtr<ValuePool> pool;
        ValuePtr value;
    };
    std::vector<PoolValue>::const_iterator find(PoolPtr const& pool) const;

    bool const perPool_;
    ValuePtr own_;
    std::vector<PoolValue> poolValues_;
};

} // namespace Kolt
