#pragma once

#include <lattice/ValuePoolSource.hpp>
#include <tessera/Export.hpp>

namespace Talo {

/// A pool source whose pool the host chooses, for the editors, icons and raw values of a panel. It must outlive the
/// editors made with it; icons share its provider. User-interface thread.
class TALO_EXPORT PoolSource : public Kolt::ValuePoolSource {
public:
    /// Without a pool at first.
    PoolSource();
    /// With this pool at first; null for none.
    explicit PoolSource(Kolt::PoolPtr const& pool);
    ~PoolSource() override;
    PoolSource(PoolSource const&) = delete;
    PoolSource& operator=(PoolSource const&) = delete;

    /// Always the same provider; never null.
    Tessera::StrongPtr<Kolt::ValuePoolProvider> getValuePoolProvider() const override;
    /// The chosen pool; null for none.
    Kolt::PoolPtr pool() const;
    /// Chooses a pool; null for none. A typed text that waits for its field to be left is written before, into the pool
    /// in which it was typed. Notifies nobody else: the caller has its panels show the pool (ParameterPanel::showPool).
    void setPool(Kolt::PoolPtr const& pool);

private:
    class Provider;
    Tessera::StrongPtr<Provider, Kolt::ValuePoolProvider> provider_;
};

} // namespace Talo
