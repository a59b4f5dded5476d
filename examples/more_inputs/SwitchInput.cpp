#include "SwitchInput.hpp"

#include <plugin/QInputWidgetCreator.hpp>
#include <QHBoxLayout>
#include <QPointer>

namespace MoreInputs {

SwitchInput::SwitchInput(Kolt::ParameterRef const& parameter, QWidget* parent, Kolt::ValuePoolSource* poolSource,
                         Kolt::PreferencesPtr const&)
    : QWidget(parent), Kolt::VInputValue<bool>(parameter, poolSource), switch_(new Switch(this)) {
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(switch_, 0, Qt::AlignLeft | Qt::AlignVCenter);
    setFocusProxy(switch_);
    showStored(firstValue());
    connect(switch_, &QCheckBox::clicked, this, &SwitchInput::write);
    activateNotification();
}

SwitchInput::~SwitchInput() = default;

void SwitchInput::onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context, Kolt::ValueMap const*) {
    if (arrivalOf(newValue, context) != Arrival::OtherPool)
        showStored(newValue);
}

void SwitchInput::showStored(Kolt::ValuePtr const& value) {
    if (cacheStored(value))
        switch_->setChecked(cached_);
}

void SwitchInput::write(bool on) {
    QPointer<SwitchInput> const self(this);
    // What was not stored is not shown.
    if (!commit(on) && self)
        showStored(firstValue());
}

namespace {

TALO_STATIC_CREATOR Kolt::QInputWidgetCreator<bool, SwitchInput> const
    switchCreator("switch", Kolt::PreferencesPtr(new Kolt::VCreationPreferences(std::string("switch"))));

} // namespace

} // namespace MoreInputs
