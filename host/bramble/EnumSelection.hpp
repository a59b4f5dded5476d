#pragma once

#include <tessera/StringList.hpp>

namespace Kolt {

/// A list of names with at most one selected place. Equal names at different places are different choices.
///
/// Values refer to a selection, and it is changed in place: all that share it see the change at once, and it notifies
/// nobody by itself. User-interface thread. Prints nothing.
class TALO_EXPORT VEnumSelection : public Tessera::StringList {
public:
    /// No place is selected at first.
    VEnumSelection();
    /// These names, in this order.
    explicit VEnumSelection(std::vector<std::string> names);
    ~VEnumSelection() override;

    /// Selects a place, from 0. A place beyond the names is ignored.
    void select(unsigned number);
    /// The selected place; -1 until one is selected.
    int selectedNumber() const { return selected_; }
    /// Another selection with the same names and the same place selected.
    Tessera::StrongPtr<Tessera::StringList> clone() const override;

private:
    VEnumSelection(VEnumSelection const&) = default;
    int selected_ = -1;
};

} // namespace Kolt
