#include <bramble/Enum.hpp>

#include <bramble/EnumSelection.hpp>
#include <lattice/ValueCreator.hpp>

namespace Kolt {

namespace {

int selectedNumber(Enum const& value) {
    auto const* const selection = dynamic_cast<VEnumSelection const*>(value.names().get());
    return selection ? selection->selectedNumber() : -1;
}

} // namespace

std::string VValueTrait<Enum>::Text(Enum const& value) {
    int const number = selectedNumber(value);
    return number < 0 ? std::string() : value.names()->at(static_cast<std::size_t>(number));
}

bool VValueTrait<Enum>::setValueFromText(Enum& value, std::string const& text) {
    auto* const selection = dynamic_cast<VEnumSelection*>(value.names().get());
    if (!selection)
        return false;
    auto const place = selection->find(text);
    if (place == selection->size())
        return false;
    selection->select(static_cast<unsigned>(place));
    return true;
}

Enum VValueTrait<Enum>::Clone(Enum const& value) {
    return Enum(Tessera::cloned(value.names()));
}

bool VValueTrait<Enum>::Equal(Enum const& left, Enum const& right) {
    return Tessera::sameTexts(left.names().get(), right.names().get()) && selectedNumber(left) == selectedNumber(right);
}

template class VTypedValueBase<Enum>;
template class VValue<Enum>;

namespace {

// Makes the type known while the library loads.
[[maybe_unused]] bool const enumIsRegistered = (registerValueCreatorOnce<Enum>(), true);

} // namespace

} // namespace Kolt
