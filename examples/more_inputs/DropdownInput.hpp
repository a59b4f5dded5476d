#pragma once

#include "DropdownFrame.hpp"

#include <bramble/Enum.hpp>
#include <bramble/StringSelection.hpp>
#include <lattice/CreationPreferences.hpp>
#include <plugin/VInputValue.hpp>

namespace MoreInputs {

/// Edits an enumeration, or a selection of one text, with a drop-down box; chosen by the preference "dropdown". Without
/// a list, and for a parameter that was deleted, the box is empty. User-interface thread.
template <typename T>
class DropdownInput : public DropdownFrame, public Kolt::VInputValue<T> {
public:
    /// Makes an editor of `parameter` on `parent`, which owns it and may be null. The editor refers to the parameter
    /// weakly. It asks `poolSource` for the pool at each use; the source must outlive it, and null means that there is
    /// no pool. `preferences` is not read.
    DropdownInput(Kolt::ParameterRef const& parameter, QWidget* parent, Kolt::ValuePoolSource* poolSource,
                  Kolt::PreferencesPtr const& preferences);
    ~DropdownInput() override;

    /// Shows a choice of the editor's pool; any other value is ignored.
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* properties) override;

private:
    /// Shows a T without writing it; nothing for any other value.
    void showStored(Kolt::ValuePtr const& value);
    /// Writes what the user chose. The editor may be deleted meanwhile.
    void write(int place);

    // Those in the box; null before the first.
    Tessera::StrongPtr<Tessera::StringList> shown_;
};

extern template class DropdownInput<Kolt::Enum>;
extern template class DropdownInput<Kolt::VStringList>;

} // namespace MoreInputs
