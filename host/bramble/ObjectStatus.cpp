#include <bramble/ObjectStatus.hpp>

#include <bramble/HarmlessText.hpp>
#include <lattice/ValueCreator.hpp>

namespace Kolt {

VObjectStatus::VObjectStatus() = default;

VObjectStatus::VObjectStatus(std::string const& text) : text_(harmlessText(text)) {}

VObjectStatus::VObjectStatus(VObjectStatus const&) = default;

VObjectStatus& VObjectStatus::operator=(VObjectStatus const&) = default;

VObjectStatus::~VObjectStatus() = default;

bool VValueTrait<VObjectStatus>::setValueFromText(VObjectStatus& value, std::string const& text) {
    value = VObjectStatus(text);
    return true;
}

template class VTypedValueBase<VObjectStatus>;
template class VValue<VObjectStatus>;

namespace {

// Makes the type known while the library loads.
[[maybe_unused]] bool const objectStatusIsRegistered = (registerValueCreatorOnce<VObjectStatus>(), true);

} // namespace

} // namespace Kolt
