#include <tessera/InterfaceIterationParameter.hpp>

namespace Tessera {

InterfaceIterationParameter::~InterfaceIterationParameter() = default;

} // namespace Tessera
