#pragma once

#include <lattice/ValuePool.hpp>

namespace Kolt {

/// Yields the current value pool. Which pool that is may change at any time, so callers ask again for each use.
/// User-interface thread.
class TALO_EXPORT ValuePoolProvider : public Tessera::ReferenceBase<ValuePoolProvider> {
public:
    ~ValuePoolProvider() override;

    /// The current pool; null if there is none.
    virtual PoolPtr getValuePool() const = 0;
};

/// The provider's current pool; null for a null provider.
TALO_EXPORT PoolPtr currentPool(Tessera::StrongPtr<ValuePoolProvider> const& provider);

} // namespace Kolt
