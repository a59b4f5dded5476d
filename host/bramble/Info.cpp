#include <bramble/Info.hpp>

#include <lattice/ValueCreator.hpp>

namespace Kolt {

bool VValueTrait<info>::setValueFromText(info& value, std::string const& text) {
    value = info(text);
    return true;
}

template class VTypedValueBase<info>;
template class VValue<info>;

namespace {

// Makes the type known while the library loads.
[[maybe_unused]] bool const infoIsRegistered = (registerValueCreatorOnce<info>(), true);

} // namespace

} // namespace Kolt
