#include <tessera/Ageable.hpp>

namespace Tessera {

std::atomic<unsigned long> Ageable::GlobalTime{0};

} // namespace Tessera
