#pragma once

#include <lattice/ValuePoolProvider.hpp>

namespace Kolt {

/// Where an editor finds its value pool. The panel owns it; it must outlive the editors made with it. User-interface
/// thread.
class TALO_EXPORT ValuePoolSource {
public:
    /// Empty, and called by nobody in this library. Keeps the request for the provider third in the virtual table,
    /// where plug-ins expect it.
    virtual void referenceHook();
    virtual ~ValuePoolSource();
    /// The current provider; null if there is none, which counts as no pool.
    virtual Tessera::StrongPtr<ValuePoolProvider> getValuePoolProvider() const = 0;
};

/// The pool that the source yields at this moment; null for a null source, provider or pool.
TALO_EXPORT PoolPtr currentPool(ValuePoolSource const* source);

} // namespace Kolt
