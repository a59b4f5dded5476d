#include "DropdownInput.hpp"

#include <bramble/EnumSelection.hpp>
#include <plugin/QInputWidgetCreator.hpp>
#include <QPointer>

namespace MoreInputs {

namespace {

using Texts = Tessera::StrongPtr<Tessera::StringList>;

Texts textsOf(Kolt::Enum const& value) {
    return value.names();
}

Texts textsOf(Kolt::VStringList const& value) {
    return value;
}

int placeOf(Kolt::Enum const& value) {
    auto const* const selection = dynamic_cast<Kolt::VEnumSelection const*>(value.names().get());
    return selection ? selection->selectedNumber() : -1;
}

int placeOf(Kolt::VStringList const& value) {
    auto const place = value ? value->find(value->selected()) : 0;
    return value && place < value->size() ? static_cast<int>(place) : -1;
}

void choose(Kolt::Enum const& value, int place) {
    if (auto* const selection = dynamic_cast<Kolt::VEnumSelection*>(value.names().get()))
        selection->select(static_cast<unsigned>(place));
}

void choose(Kolt::VStringList const& value, int place) {
    if (value && static_cast<std::size_t>(place) < value->size())
        value->select(value->at(static_cast<std::size_t>(place)));
}

} // namespace

template <typename T>
DropdownInput<T>::DropdownInput(Kolt::ParameterRef const& parameter, QWidget* parent, Kolt::ValuePoolSource* poolSource,
                                Kolt::PreferencesPtr const&)
    : DropdownFrame(parent), Kolt::VInputValue<T>(parameter, poolSource) {
    showStored(this->firstValue());
    connect(this, &DropdownFrame::chosen, this, &DropdownInput::write);
    this->activateNotification();
}

template <typename T>
DropdownInput<T>::~DropdownInput() = default;

template <typename T>
void DropdownInput<T>::onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                                     Kolt::ValueMap const*) {
    if (this->arrivalOf(newValue, context) != Kolt::VInputValue<T>::Arrival::OtherPool)
        showStored(newValue);
}

template <typename T>
void DropdownInput<T>::showStored(Kolt::ValuePtr const& value) {
    if (!this->cacheStored(value))
        return;
    auto const texts = textsOf(this->cached_);
    if (Tessera::sameTexts(texts.get(), shown_.get()))
        showCurrent(placeOf(this->cached_));
    else
        showTexts(texts ? texts->strings() : std::vector<std::string>(), placeOf(this->cached_));
    shown_ = texts;
}

template <typename T>
void DropdownInput<T>::write(int place) {
    QPointer<DropdownInput> const self(this);
    // A selection is changed in place, so that all that refer to it see the change; without a pool nothing may change.
    if (this->pool()) {
        this->cachePoolValue();
        choose(this->cached_, place);
        if (this->commit(this->cached_))
            return;
    }
    if (self)
        showStored(this->firstValue());
}

template class DropdownInput<Kolt::Enum>;
template class DropdownInput<Kolt::VStringList>;

namespace {

TALO_STATIC_CREATOR Kolt::QInputWidgetCreator<Kolt::Enum, DropdownInput<Kolt::Enum>> const
    enumDropdown("dropdown", Kolt::PreferencesPtr(new Kolt::VCreationPreferences(std::string("dropdown"))));
TALO_STATIC_CREATOR Kolt::QInputWidgetCreator<Kolt::VStringList, DropdownInput<Kolt::VStringList>> const
    textDropdown("dropdown", Kolt::PreferencesPtr(new Kolt::VCreationPreferences(std::string("dropdown"))));

} // namespace

} // namespace MoreInputs
