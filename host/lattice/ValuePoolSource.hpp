#pragma once

#include <lattice/ValuePoolProvider.hpp>

namespace Kolt {

/// Where an editor finds its value pool. The host owns it. An editor that makeEditor made may outlive it and then has
/// no pool; one that was made by its creator directly must not. User-interface thread.
///
/// Plug-ins expect the order of the virtual operations: the reference hook of ReferenceBase, the destructor, the
/// request for the provider.
class TALO_EXPORT ValuePoolSource : public Tessera::ReferenceBase<ValuePoolSource> {
public:
    ~ValuePoolSource() override;
    /// The current provider; null if there is none, which counts as no pool.
    virtual Tessera::StrongPtr<ValuePoolProvider> getValuePoolProvider() const = 0;
};

/// The pool that the source yields at this moment; null for a null source, provider or pool.
TALO_EXPORT PoolPtr currentPool(ValuePoolSource const* source);

} // namespace Kolt
