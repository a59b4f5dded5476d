#pragma once

#include <lattice/Value.hpp>
#include <lattice/ValuePool.hpp>
#include <tessera/Export.hpp>
#include <vector>

namespace Kolt {

class VParameter;

/// A copy of the value that is effective for a parameter in a pool. REQUIRES, for all operations: `value` is not null.
struct TALO_EXPORT EffectiveValue {
    /// A copy, which must not be changed.
    ValuePtr value;
    /// Whether the pool has no value of its own, so that the parameter's own value is effective. Always false for a
    /// parameter with one value.
    bool isInherited = false;

    /// Whether both values are equal, inherited or not.
    bool equals(EffectiveValue const& other) const;
};

/// A copy of the value that is effective now.
[[nodiscard]] TALO_EXPORT EffectiveValue copyEffectiveValue(VParameter const& parameter, PoolPtr const& pool);

/// Makes a value effective: stores a copy of it, or removes the pool's value if `value` is inherited. Then marks the
/// effective value as changed and notifies everybody, without a source. Nothing happens if the value is effective
/// already. False, and nothing stored, if the parameter keeps values per pool and there is no pool, or if the
/// parameter's own value is of another type. REQUIRES: the caller keeps the parameter alive.
[[nodiscard]] TALO_EXPORT bool applyValue(VParameter& parameter, PoolPtr const& pool, EffectiveValue const& value);

/// Removes the pool's value if it equals the parameter's own value, which is then effective. For callers that show an
/// inherited value, as some editors store a copy of what they are shown. Notifies nobody.
TALO_EXPORT void removeCopyOfOwnValue(VParameter& parameter, PoolPtr const& pool);

/// Copies of all values of a parameter: its own and those of its pools. REQUIRES: all operations of a snapshot are
/// given the parameter that it was made of. User-interface thread.
class TALO_EXPORT ValueSnapshot {
public:
    /// Copies what the parameter has now.
    explicit ValueSnapshot(VParameter const& parameter);
    ~ValueSnapshot();

    /// The copy of the value that was effective in a pool.
    EffectiveValue in(PoolPtr const& pool) const;
    /// Copies all values again.
    void refresh(VParameter const& parameter);
    /// Copies the effective value of one pool again, and no other, as copying a long list is slow.
    void refreshIn(VParameter const& parameter, PoolPtr const& pool);
    /// Whether the value that is effective in the pool now equals the copy. A pool that got a value of its own since
    /// then, equal to the inherited one, counts as equal.
    bool isEffectiveIn(VParameter const& parameter, PoolPtr const& pool) const;
    /// Whether the parameter's own value equals the copy.
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
