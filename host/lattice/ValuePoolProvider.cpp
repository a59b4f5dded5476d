#include <lattice/ValuePoolProvider.hpp>

namespace Kolt {

ValuePoolProvider::~ValuePoolProvider() = default;

PoolPtr currentPool(Tessera::StrongPtr<ValuePoolProvider> const& provider) {
    return provider ? provider->getValuePool() : nullptr;
}

} // namespace Kolt
