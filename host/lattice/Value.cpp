#include <lattice/Value.hpp>

namespace Kolt {

template class VTypedValueBase<bool>;
template class VTypedValueBase<int>;
template class VTypedValueBase<double>;
template class VTypedValueBase<std::string>;
template class VTypedValueBase<std::array<std::string, 1>>;
template class VValue<bool>;
template class VValue<int>;
template class VValue<double>;
template class VValue<std::string>;
template class VValue<std::array<std::string, 1>>;

} // namespace Kolt
