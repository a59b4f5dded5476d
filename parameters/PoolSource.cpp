#include <parameters/PoolSource.hpp>

namespace Talo {

class PoolSource::Provider : public Kolt::ValuePoolProvider {
public:
    Kolt::PoolPtr getValuePool() const override { return pool; }

    Kolt::PoolPtr pool;
};

PoolSource::PoolSource() : provider_(new Provider) {}

PoolSource::PoolSource(Kolt::PoolPtr const& pool) : PoolSource() {
    setPool(pool);
}

PoolSource::~PoolSource() = default;

Tessera::StrongPtr<Kolt::ValuePoolProvider> PoolSource::getValuePoolProvider() const {
    return provider_;
}

Kolt::PoolPtr PoolSource::pool() const {
    return provider_->pool;
}

void PoolSource::setPool(Kolt::PoolPtr const& pool) {
    provider_->pool = pool;
}

} // namespace Talo
