#pragma once

#include "NumberField.hpp"

#include <lattice/CreationPreferences.hpp>
#include <plugin/VInputValue.hpp>

namespace MoreInputs {

/// Edits an int or a double with a NumberField, with arrow buttons for the preference "spin" and without for "field".
///
/// The parameter's properties: "min" and "max" (of its type), which the number does not leave; "softMinimum" and
/// "softMaximum" (of its type), between which drags and steps stay; "step" (of its type), what one step adds; an int
/// counts for a double, too;
/// "logarithmic" (bool), steps multiply; "precision" (int, 0 to 1000), the number of decimals; "unit" (text), shown
/// behind the number. All are read again when one changes; none is added. A parameter that was deleted is shown as 0,
/// and an edit prints the owner-fault line. User-interface thread.
template <typename T>
class NumberInput : public NumberField, public Kolt::VInputValue<T> {
public:
    /// Makes an editor of `parameter` on `parent`, which owns it and may be null. The editor refers to the parameter
    /// weakly. It asks `poolSource` for the pool at each use; the source must outlive it, and null means that there is
    /// no pool. `preferences` may be null.
    NumberInput(Kolt::ParameterRef const& parameter, QWidget* parent, Kolt::ValuePoolSource* poolSource,
                Kolt::PreferencesPtr const& preferences);
    ~NumberInput() override;

    /// Takes changed properties, and shows a number of the editor's pool; any other value is ignored.
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* properties) override;

private:
    void applyProperties();
    /// Shows a T without writing it; nothing for any other value.
    void showStored(Kolt::ValuePtr const& value);
    /// Writes what the user chose. The editor may be deleted meanwhile.
    void write(double number);
};

extern template class NumberInput<int>;
extern template class NumberInput<double>;

} // namespace MoreInputs
