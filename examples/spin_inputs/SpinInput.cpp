#include "SpinInput.hpp"

#include <limits>
#include <plugin/Plugin.hpp>
#include <plugin/QInputWidgetCreator.hpp>
#include <QSignalBlocker>

namespace Kolt {

SpinInput::SpinInput(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource, PreferencesPtr const&)
    : QSpinBox(parent), VInputValue<int>(parameter, poolSource) {
    setRange(std::numeric_limits<int>::lowest(), std::numeric_limits<int>::max());
    showValue(ownValue());
    connect(this, QOverload<int>::of(&QSpinBox::valueChanged), this, &SpinInput::writeValue);
    activateNotification();
}

SpinInput::~SpinInput() = default;

void SpinInput::onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const*) {
    if (arrivalOf(newValue, context) != Arrival::OtherPool)
        showValue(newValue);
}

void SpinInput::showValue(ValuePtr const& value) {
    if (!cacheStored(value))
        return;
    QSignalBlocker const blocker(this);
    QSpinBox::setValue(cached_);
}

void SpinInput::writeValue(int value) {
    commit(value);
}

namespace {

TALO_STATIC_CREATOR QInputWidgetCreator<int, SpinInput> const
    spinCreator("spin box", PreferencesPtr(new VCreationPreferences(std::string("spin"))));

} // namespace

} // namespace Kolt

TALO_PLUGIN(spin_inputs);
