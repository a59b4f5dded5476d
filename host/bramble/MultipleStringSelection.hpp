#pragma once

#include <bramble/ChoiceBits.hpp>
#include <lattice/Value.hpp>
#include <tessera/StringList.hpp>

namespace Kolt {

/// A list of texts and the set of the chosen ones, which is always a part of the list. Equal texts of the list are
/// chosen together.
///
/// Values refer to a selection, and it is changed in place: all that share it see the change at once, and it notifies
/// nobody by itself. An operation on one text does not depend on the length of the list; a clone shares the texts
/// and what of the choice is equal (ChoiceBits). User-interface thread. Prints nothing.
class TALO_EXPORT MultipleStringSelection : public Tessera::StringList {
public:
    /// Nothing is chosen at first.
    MultipleStringSelection();
    /// A selection among these texts, with none chosen.
    explicit MultipleStringSelection(std::vector<std::string> strings);
    ~MultipleStringSelection() override;

    /// Chooses a text. A text that is chosen already or not in the list changes nothing.
    void add(std::string const& text);
    /// Chooses a text that is not chosen, and the other way round. A text that is not in the list changes nothing.
    void addOrRemove(std::string const& text);
    /// Whether a text is chosen; false for a text that is not in the list.
    bool isInSelection(std::string const& text) const;
    /// Whether the text at a place is chosen. REQUIRES: `place` is below size().
    bool isChosen(std::size_t place) const { return chosen_[block().firstPlace(place)]; }
    /// The first place of a text that only one of both chose; size() if there is none. REQUIRES: both have the same
    /// texts.
    std::size_t firstDifference(MultipleStringSelection const& other) const;
    /// The bytes of the choice that no clone shares.
    std::size_t choiceBytes() const { return chosen_.byteCount(); }
    /// Removes a text from the choice. A text that is not chosen changes nothing.
    void removeFromSelection(std::string const& text);
    /// Chooses every text.
    void addAll();
    /// Chooses the texts that are not chosen instead of those that are.
    void invertAll();
    /// Empties the choice.
    void removeAll();
    /// How many different texts are chosen.
    std::size_t chosenCount() const;
    /// Whether both have the same texts in the same order and chose the same ones.
    bool hasSameChoice(MultipleStringSelection const& other) const;
    /// Another selection with the same texts and the same ones chosen.
    Tessera::StrongPtr<Tessera::StringList> clone() const override;

private:
    MultipleStringSelection(MultipleStringSelection const&);
    /// The first place of the text; the length of the list if it is not there.
    std::size_t firstPlace(std::string const& text) const;

    // By place; only the bit at the first place of a text counts.
    ChoiceBits chosen_;
    // After the text last asked for. Most callers walk through the list in order, and the next text is found without a
    // search, which in a long list waits for the memory.
    mutable std::size_t nextPlace_ = 0;
};

/// The name under which the selection is known as a value type.
using VMultipleStringList = Tessera::StrongPtr<MultipleStringSelection, Tessera::StringList>;

/// How a selection is written and compared. Null has an empty text and is never set from one.
template <>
struct TALO_EXPORT VValueTrait<VMultipleStringList> {
    /// The chosen texts in the order of the list, with a line feed between them. The empty text as the only choice is a
    /// line feed. A line feed in a text is written as "\n", and a backslash before "n" or another backslash is doubled.
    static std::string Text(VMultipleStringList const& value);
    /// Replaces the choice. A line feed at the end is ignored if the list has no empty text. Returns false, and changes
    /// nothing, if a line is not in the list.
    static bool setValueFromText(VMultipleStringList& value, std::string const& text);
    /// A selection of its own that shares the texts.
    static VMultipleStringList Clone(VMultipleStringList const& value);
    /// Of the choice without the texts.
    static std::size_t ByteCount(VMultipleStringList const& value);
    /// Whether both have the same texts and chose the same ones, or both are null.
    static bool Equal(VMultipleStringList const& left, VMultipleStringList const& right);
};

extern template class TALO_EXPORT VTypedValueBase<VMultipleStringList>;
extern template class TALO_EXPORT VValue<VMultipleStringList>;

} // namespace Kolt
