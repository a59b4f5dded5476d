#pragma once

#include <lattice/CreationPreferences.hpp>
#include <plugin/VInputValue.hpp>
#include <QSpinBox>

namespace Kolt {

/// Edits an int with a spin box, chosen by the preference "spin". Every step and every typed number is written. It
/// takes any int; the properties "min" and "max" are not read. If the parameter was deleted, it starts with 0, and an
/// edit prints the owner-fault line. User-interface thread.
class SpinInput : public QSpinBox, public VInputValue<int> {
    Q_OBJECT

public:
    /// Makes an editor of `parameter` on `parent`, which owns it and may be null. The editor refers to the parameter
    /// weakly. It asks `poolSource` for the pool at each use; the source must outlive it, and null means that there is
    /// no pool. `preferences` is not read.
    SpinInput(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
              PreferencesPtr const& preferences);
    ~SpinInput() override;

    /// Shows an int of the editor's pool; any other value is ignored.
    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

private:
    /// Shows an int without writing it; nothing for any other value.
    void showValue(ValuePtr const& value);
    /// Writes what the user chose. The editor may be deleted meanwhile.
    void writeValue(int value);
};

} // namespace Kolt
