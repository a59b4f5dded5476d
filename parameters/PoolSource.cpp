#include <parameters/PoolSource.hpp>

#include <parameters/input/PendingEdit.hpp>

namespace Talo {

class PoolSource::Provider : public Kolt::ValuePoolProvider {
public:
    Kolt::PoolPtr getValuePool() const override { return pool; }

    Kolt::PoolPtr pool;
};

PoolSource::PoolSource() : provider_(new Provider) {}

PoolSource::PoolSource(Kolt::PoolPtr const& pool) : PoolSource() {
    provider_->pool = pool;
}

PoolSource::~PoolSource() = default;

Tessera::StrongPtr<Kolt::ValuePoolProvider> PoolSource::getValuePoolProvider() const {
    return provider_;
}

Kolt::PoolPtr PoolSource::pool() const {
    return provider_->pool;
}

void PoolSource::setPool(Kolt::PoolPtr const& pool) {
    if (provider_->pool == pool)
        return;
    // What was typed belongs to the pool in which it was typed. Copies: a notifier may destroy this source.
    auto const provider = provider_;
    auto const chosen = pool;
    commitPendingEdits();
    provider->pool = chosen;
}

} // namespace Talo
