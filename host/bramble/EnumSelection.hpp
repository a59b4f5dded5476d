#pragma once

#include <tessera/StringList.hpp>

namespace Kolt {

/// A list of names with one selected place. Values refer to it, and it is changed in place: whoever shares it sees the
/// change at once; it notifies nobody by itself. User-interface thread.
class VEnumSelection : public Tessera::StringList {
public:
    VEnumSelection();
    explicit VEnumSelection(std::vector<std::string> names);
    ~VEnumSelection() override;

    /// Selects a place; one beyond the names is ignored.
    void select(unsigned number);
    /// The selected place; -1 until one was selected.
    int selectedNumber() const { return selected_; }
    Tessera::StrongPtr<Tessera::StringList> clone() const override;

private:
    VEnumSelection(VEnumSelection const&) = default;
    int selected_ = -1;
};

} // namespace Kolt
