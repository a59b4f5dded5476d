#pragma once

#include <lattice/ValuePoolSource.hpp>

namespace Talo {

/// The value pool that was chosen in the panel, for all its editors, icons and raw values. It must outlive the editors
/// made with it; icons share its provider. User-interface thread.
class PoolSource : public Kolt::ValuePoolSource {
public:
    PoolSource();
    ~PoolSource() override;
    PoolSource(PoolSource const&) = delete;
    PoolSource& operator=(PoolSource const&) = delete;

    /// Always the same provider; never null.
    Tessera::StrongPtr<Kolt::ValuePoolProvider> getValuePoolProvider() const override;
    /// The chosen pool; null as long as none was chosen.
    Kolt::PoolPtr pool() const;
    /// Chooses a pool; null for none. Tells nobody: whoever chooses has the editors show the pool's values.
    void setPool(Kolt::PoolPtr const& pool);

private:
    class Provider;
    Tessera::StrongPtr<Provider, Kolt::ValuePoolProvider> provider_;
};

} // namespace Talo
