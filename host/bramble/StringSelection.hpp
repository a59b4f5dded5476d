#pragma once

#include <lattice/Value.hpp>
#include <tessera/StringList.hpp>

namespace Kolt {

/// A list of texts with one selected text. Changed in place like VEnumSelection.
class StringSelection : public Tessera::StringList {
public:
    StringSelection();
    explicit StringSelection(std::vector<std::string> strings, std::string const& selected = {});
    ~StringSelection() override;

    /// Selects a text of the list; any other is refused: false, and nothing changes.
    bool select(std::string const& text);
    /// The selected text; empty until one was selected.
    std::string const& selected() const { return selected_; }
    Tessera::StrongPtr<Tessera::StringList> clone() const override;

private:
    StringSelection(StringSelection const&) = default;
    std::string selected_;
};

/// The name under which the selection is known as a value type.
using VStringList = Tessera::StrongPtr<StringSelection, Tessera::StringList>;

/// The text is the selected one; a text that is not in the list is refused. A clone has a selection of its own.
template <>
struct VValueTrait<VStringList> {
    static std::string Text(VStringList const& value);
    static bool setValueFromText(VStringList& value, std::string const& text);
    static VStringList Clone(VStringList const& value);
    /// The same texts with the same one selected.
    static bool Equal(VStringList const& left, VStringList const& right);
};

extern template class VTypedValueBase<VStringList>;
extern template class VValue<VStringList>;

} // namespace Kolt
