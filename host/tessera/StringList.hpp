#pragma once

#include <memory>
#include <tessera/Reference.hpp>
#include <tessera/StringBlock.hpp>

namespace Tessera {

/// An ordered list of texts. Duplicates are allowed, texts are compared byte for byte. Usually UTF-8, but any bytes
/// are kept. The texts are fixed when the list is made; a clone shares them, so it costs no copy of a text. One thread
/// at a time; a list and its clone may be used on different threads. Prints nothing.
class TALO_EXPORT StringList : public ReferenceBase<StringList> {
public:
    /// Goes through the texts in order.
    using const_iterator = std::vector<std::string>::const_iterator;

    /// A list without texts.
    StringList();
    /// These texts, in this order.
    explicit StringList(std::vector<std::string> strings);
    ~StringList() override;
    StringList& operator=(StringList const&) = delete;

    /// The number of texts.
    std::size_t size() const { return strings().size(); }
    /// Whether there is no text.
    bool empty() const { return strings().empty(); }
    /// A text by its place, from 0; throws std::out_of_range for a place beyond the list.
    std::string const& at(std::size_t index) const { return strings().at(index); }
    /// The first text.
    const_iterator begin() const { return strings().begin(); }
    /// Past the last text.
    const_iterator end() const { return strings().end(); }
    /// All texts. The reference stays valid as long as the list or one of its clones lives.
    std::vector<std::string> const& strings() const { return block_->strings(); }

    /// The first place of a text; size() if it is not in the list. Only the first search in a list and its clones
    /// depends on the number of texts.
    std::size_t find(std::string const& text) const { return block_->find(text); }
    /// The last place of a text; size() if it is not in the list.
    std::size_t findLast(std::string const& text) const { return block_->findLast(text); }
    /// Whether the text is in the list.
    bool contains(std::string const& text) const { return find(text) < size(); }
    /// Whether both have the same texts in the same order. Costs nothing for a list and its clone.
    bool hasSameTexts(StringList const& other) const;

    /// Another list with the same texts and, in derived classes, the same choice. The caller owns it.
    [[nodiscard]] virtual StrongPtr<StringList> clone() const;

protected:
    StringList(StringList const&) = default;
    /// What the list shares with its clones; never null.
    StringBlock const& block() const { return *block_; }

private:
    std::shared_ptr<StringBlock const> block_;
};

/// Whether both are null, or both have the same texts in the same order.
TALO_EXPORT bool sameTexts(StringList const* left, StringList const* right);

/// A clone of the list, as a reference to its class; null for a null list.
template <typename List>
[[nodiscard]] StrongPtr<List, StringList> cloned(StrongPtr<List, StringList> const& list) {
    return list ? StrongPtr<List, StringList>(DynPtr<List, StringList>(list->clone())) : nullptr;
}

} // namespace Tessera
