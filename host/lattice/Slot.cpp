#include <lattice/Slot.hpp>

#include <algorithm>

namespace Kolt {

VSlot::VSlot(std::string name, ParameterPtr const& parameter) : name_(std::move(name)), parameter_(parameter) {}

VSlot::~VSlot() = default;

VSlotContainer::~VSlotContainer() = default;

void VSlotContainer::addSlot(Tessera::StrongPtr<VSlot> const& slot) {
    if (slot)
        slots_.push_back(slot);
}

Tessera::StrongPtr<VSlot> VSlotContainer::findSlot(ParameterPtr const& parameter) const {
    if (!parameter)
        return nullptr;
    auto const found =
        std::find_if(slots_.begin(), slots_.end(), [&](auto const& slot) { return slot->parameter() == parameter; });
    return found == slots_.end() ? nullptr : *found;
}

} // namespace Kolt
