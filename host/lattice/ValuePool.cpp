#include <lattice/ValuePool.hpp>

namespace Kolt {

ValuePool::ValuePool(std::string name) : name_(std::move(name)) {}

ValuePool::~ValuePool() = default;

} // namespace Kolt
