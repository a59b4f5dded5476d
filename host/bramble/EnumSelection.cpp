#include <bramble/EnumSelection.hpp>

namespace Kolt {

VEnumSelection::VEnumSelection() = default;

VEnumSelection::VEnumSelection(std::vector<std::string> names) : StringList(std::move(names)) {}

VEnumSelection::~VEnumSelection() = default;

void VEnumSelection::select(unsigned number) {
    if (number < size())
        selected_ = static_cast<int>(number);
}

Tessera::StrongPtr<Tessera::StringList> VEnumSelection::clone() const {
    return Tessera::StrongPtr<Tessera::StringList>(new VEnumSelection(*this));
}

} // namespace Kolt
