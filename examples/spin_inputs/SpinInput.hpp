#pragma once

#include <lattice/CreationPreferences.hpp>
#include <plugin/VInputValue.hpp>
#include <QSpinBox>

namespace Kolt {

/// Edits an int with a spin box, chosen by the preference "spin". Every step and every typed number is written.
class SpinInput : public QSpinBox, public VInputValue<int> {
    Q_OBJECT

public:
    SpinInput(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
              PreferencesPtr const& preferences);
    ~SpinInput() override;

    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

private:
    void showValue(ValuePtr const& value);
    void writeValue(int value);
};

} // namespace Kolt
