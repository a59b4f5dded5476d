#pragma once

#include <lattice/Value.hpp>
#include <tessera/StringList.hpp>
#include <unordered_map>

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

/// A value that refers to a list of names, usually a VEnumSelection. Copies share the list.
class Enum {
public:
    Enum() = default;
    explicit Enum(Tessera::StrongPtr<Tessera::StringList> names) : names_(std::move(names)) {}
    /// The list; null for a value that refers to none.
    Tessera::StrongPtr<Tessera::StringList> const& names() const { return names_; }

private:
    Tessera::StrongPtr<Tessera::StringList> names_;
};

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

/// The names under which the selections are known as value types.
using VStringList = Tessera::StrongPtr<StringSelection, Tessera::StringList>;
using VMultipleStringList = Tessera::StrongPtr<MultipleStringSelection, Tessera::StringList>;

/// The text is the selected name; a text that is none of the names is refused. A clone has a list of its own.
template <>
struct VValueTrait<Enum> {
    static std::string Text(Enum const& value);
    static bool setValueFromText(Enum& value, std::string const& text);
    static Enum Clone(Enum const& value);
    /// The same names with the same one selected.
    static bool Equal(Enum const& left, Enum const& right);
};

/// The text is the selected one; a text that is not in the list is refused. A clone has a selection of its own.
template <>
struct VValueTrait<VStringList> {
    static std::string Text(VStringList const& value);
    static bool setValueFromText(VStringList& value, std::string const& text);
    static VStringList Clone(VStringList const& value);
    /// The same texts with the same one selected.
    static bool Equal(VStringList const& left, VStringList const& right);
};

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

extern template class VTypedValueBase<Enum>;
extern template class VTypedValueBase<VStringList>;
extern template class VTypedValueBase<VMultipleStringList>;
extern template class VValue<Enum>;
extern template class VValue<VStringList>;
extern template class VValue<VMultipleStringList>;

} // namespace Kolt
