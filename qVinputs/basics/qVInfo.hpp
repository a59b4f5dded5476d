#pragma once

#include <bramble/Info.hpp>
#include <lattice/CreationPreferences.hpp>
#include <plugin/VInputValue.hpp>
#include <QLabel>

namespace Kolt {

/// Shows an informational text in a label and never writes. Texts that look like rich text are shown as such. Its
/// changes are expected on the user-interface thread. The preferences are not looked at. Where the parameter is gone
/// the label is empty.
class qVInfo : public QLabel, public VInputValue<info> {
public:
    qVInfo(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
           PreferencesPtr const& preferences);
    ~qVInfo() override;

    /// Shows an info; any other value is ignored.
    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;
};

} // namespace Kolt
