#pragma once

#include <lattice/ValuePoolSource.hpp>

namespace Checker {

/// A pool source whose pool is chosen by its owner. User-interface thread.
class ChosenPools : public Kolt::ValuePoolSource {
public:
    ChosenPools() : provider_(new Provider) {}
    Tessera::StrongPtr<Kolt::ValuePoolProvider> getValuePoolProvider() const override { return provider_; }

    /// The pool from now on; null for none.
    void use(Kolt::PoolPtr const& pool) {
        if (!provider_)
            provider_ = ProviderPtr(new Provider);
        provider_->pool = pool;
    }
    /// Removes the provider, until a pool is used again.
    void dropProvider() { provider_.reset(); }

private:
    struct Provider : Kolt::ValuePoolProvider {
        Kolt::PoolPtr getValuePool() const override { return pool; }
        Kolt::PoolPtr pool;
    };
    using ProviderPtr = Tessera::StrongPtr<Provider, Kolt::ValuePoolProvider>;
    ProviderPtr provider_;
};

} // namespace Checker
