#pragma once

#include <lattice/Value.hpp>
#include <tessera/StringList.hpp>

namespace Kolt {

/// A list of texts with at most one selected text.
///
/// Values refer to a selection, and it is changed in place: all that share it see the change at once, and it notifies
/// nobody by itself. User-interface thread. Prints nothing.
class TALO_EXPORT StringSelection : public Tessera::StringList {
public:
    /// An empty list.
    StringSelection();
    /// A list with one text selected; none is selected if `selected` is not in the list.
    explicit StringSelection(std::vector<std::string> strings, std::string const& selected = {});
    ~StringSelection() override;

    /// Selects a text of the list. Returns false, and changes nothing, for any other text.
    bool select(std::string const& text);
    /// The selected text; empty until one is selected.
    std::string const& selected() const { return selected_; }
    /// Another selection with the same texts and the same one selected.
    Tessera::StrongPtr<Tessera::StringList> clone() const override;

private:
    StringSelection(StringSelection const&) = default;
    std::string selected_;
};

/// The name under which the selection is known as a value type.
using VStringList = Tessera::StrongPtr<StringSelection, Tessera::StringList>;

/// How a selection is written and compared. Null has an empty text and is never set from one.
template <>
struct TALO_EXPORT VValueTrait<VStringList> {
    /// The selected text.
    static std::string Text(VStringList const& value);
    /// Selects the text. Returns false, and changes nothing, if it is not in the list.
    static bool setValueFromText(VStringList& value, std::string const& text);
    /// A selection of its own that shares the texts.
    static VStringList Clone(VStringList const& value);
    /// Whether both have the same texts and selected the same one, or both are null.
    static bool Equal(VStringList const& left, VStringList const& right);
    /// Of the selection without its texts.
    static std::size_t ByteCount(VStringList const& value);
};

extern template class TALO_EXPORT VTypedValueBase<VStringList>;
extern template class TALO_EXPORT VValue<VStringList>;

} // namespace Kolt
