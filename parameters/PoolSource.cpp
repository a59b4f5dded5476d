#include <parameters/PoolSource.hpp>

namespace Talo {

class PoolSource::Provider : public Kolt::ValuePoolProvider {
public:
    Tessera::StrongPtr<Kolt::ValuePool> getValuePool() const override { return pool; }

    Tessera::StrongPtr<Kolt::ValuePool> pool;
};

PoolSource::PoolSource() : provider_(new Provider) {}

PoolSource::~PoolSource() = default;

Tessera::StrongPtr<Kolt::ValuePoolProvider> PoolSource::getValuePoolProvider() const {
    return provider_;
}

Tessera::StrongPtr<Kolt::ValuePool> PoolSource::pool() const {
    return provider_->pool;
}

void PoolSource::setPool(Tessera::StrongPtr<Kolt::ValuePool> const& pool) {
    provider_->pool = pool;
}

} // namespace Talo
