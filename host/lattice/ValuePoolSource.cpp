#include <lattice/ValuePoolSource.hpp>

namespace Kolt {

ValuePoolSource::~ValuePoolSource() = default;

PoolPtr currentPool(ValuePoolSource const* source) {
    return source ? currentPool(source->getValuePoolProvider()) : nullptr;
}

} // namespace Kolt
