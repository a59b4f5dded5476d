#include <bramble/StringSelection.hpp>

#include <lattice/ValueCreator.hpp>

namespace Kolt {

StringSelection::StringSelection() = default;

StringSelection::StringSelection(std::vector<std::string> strings, std::string const& selected)
    : StringList(std::move(strings)) {
    // Without a choice the list is not searched, so its index is not built.
    if (!selected.empty())
        select(selected);
}

StringSelection::~StringSelection() = default;

bool StringSelection::select(std::string const& text) {
    if (!contains(text))
        return false;
    selected_ = text;
    return true;
}

Tessera::StrongPtr<Tessera::StringList> StringSelection::clone() const {
    return Tessera::StrongPtr<Tessera::StringList>(new StringSelection(*this));
}

std::string VValueTrait<VStringList>::Text(VStringList const& value) {
    return value ? value->selected() : std::string();
}

bool VValueTrait<VStringList>::setValueFromText(VStringList& value, std::string const& text) {
    return value && value->select(text);
}

VStringList VValueTrait<VStringList>::Clone(VStringList const& value) {
    return Tessera::cloned(value);
}

bool VValueTrait<VStringList>::Equal(VStringList const& left, VStringList const& right) {
    return Tessera::sameTexts(left.get(), right.get()) && (!left || left->selected() == right->selected());
}

std::size_t VValueTrait<VStringList>::ByteCount(VStringList const& value) {
    return value ? sizeof *value + value->selected().size() : 0;
}

template class VTypedValueBase<VStringList>;
template class VValue<VStringList>;

namespace {

// Makes the type known while the library loads.
[[maybe_unused]] bool const stringSelectionIsRegistered = (registerValueCreatorOnce<VStringList>(), true);

} // namespace

} // namespace Kolt
