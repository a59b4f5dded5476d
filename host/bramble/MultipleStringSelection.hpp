#pragma once

#include <lattice/Value.hpp>
#include <tessera/StringList.hpp>
#include <unordered_map>

namespace Kolt {

/// A list of texts and the set of those that are chosen, which is always a part of the list. Equal texts of the list
/// are chosen together. Changed in place like VEnumSelection. Every operation on one text costs the same however long
/// the list is.
class MultipleStringSelection : public Tessera::StringList {
public:
    MultipleStringSelection();
    explicit MultipleStringSelection(std::vector<std::string> strings);
    ~MultipleStringSelection() override;

    /// Chooses a text. Nothing happens for one that is chosen already or not in the list.
    void add(std::string const& text);
    /// Exchanges chosen and not chosen for one text. Nothing happens for one that is not in the list.
    void addOrRemove(std::string const& text);
    /// Whether a text is chosen.
    bool isInSelection(std::string const& text) const;
    /// Takes a text out of the choice.
    void removeFromSelection(std::string const& text);
    void addAll();
    /// Exchanges chosen and not chosen for every text.
    void invertAll();
    void removeAll();
    /// How many different texts are chosen.
    std::size_t chosenCount() const;
    Tessera::StrongPtr<Tessera::StringList> clone() const override;

private:
    MultipleStringSelection(MultipleStringSelection const& other);
    void indexTexts();
    /// Where the text first stands in the list; the length of the list where it does not.
    std::size_t firstPlace(std::string const& text) const;

    // Where each text first stands. The keys look into the list, which never changes.
    std::unordered_map<std::string_view, std::size_t> places_;
    // By place: where the text that stands there first stands.
    std::vector<std::size_t> firstPlaces_;
    // By place; it holds where a text first stands.
    std::vector<bool> chosen_;
    // After the text last asked for. Most callers go through the list in order, and the next text is found without a
    // search, which in a long list waits for the memory.
    mutable std::size_t nextPlace_ = 0;
};

/// The name under which the selection is known as a value type.
using VMultipleStringList = Tessera::StrongPtr<MultipleStringSelection, Tessera::StringList>;

/// The text is the chosen ones in the order of the list, one a line; a text with a line that is not in the list is
/// refused. A clone has a selection of its own.
template <>
struct VValueTrait<VMultipleStringList> {
    static std::string Text(VMultipleStringList const& value);
    static bool setValueFromText(VMultipleStringList& value, std::string const& text);
    static VMultipleStringList Clone(VMultipleStringList const& value);
    /// The same texts with the same ones chosen.
    static bool Equal(VMultipleStringList const& left, VMultipleStringList const& right);
};

extern template class VTypedValueBase<VMultipleStringList>;
extern template class VValue<VMultipleStringList>;

} // namespace Kolt
