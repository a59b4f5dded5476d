#pragma once

#include "Switch.hpp"

#include <lattice/CreationPreferences.hpp>
#include <plugin/VInputValue.hpp>
#include <QWidget>

namespace MoreInputs {

/// Edits a bool with a switch, chosen by the preference "switch". A parameter that was deleted is shown as off, and an
/// edit prints the owner-fault line. User-interface thread.
class SwitchInput : public QWidget, public Kolt::VInputValue<bool> {
    Q_OBJECT

public:
    /// Makes an editor of `parameter` on `parent`, which owns it and may be null. The editor refers to the parameter
    /// weakly. It asks `poolSource` for the pool at each use; the source must outlive it, and null means that there is
    /// no pool. `preferences` is not read.
    SwitchInput(Kolt::ParameterRef const& parameter, QWidget* parent, Kolt::ValuePoolSource* poolSource,
                Kolt::PreferencesPtr const& preferences);
    ~SwitchInput() override;

    /// Shows a bool of the editor's pool; any other value is ignored.
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* properties) override;

private:
    /// Shows a bool without writing it; nothing for any other value.
    void showStored(Kolt::ValuePtr const& value);
    /// Writes what the user chose. The editor may be deleted meanwhile.
    void write(bool on);

    Switch* const switch_;
};

} // namespace MoreInputs
