#pragma once

#include <cstddef>
#include <string>
#include <tessera/Reference.hpp>
#include <vector>

namespace Tessera {

/// An ordered list of texts. Duplicates are allowed, texts are compared byte for byte. Usually UTF-8, but any bytes
/// are kept. The list is fixed when it is made. One thread at a time.
class StringList : public ReferenceBase<StringList> {
public:
    using const_iterator = std::vector<std::string>::const_iterator;

    StringList() = default;
    explicit StringList(std::vector<std::string> strings) : strings_(std::move(strings)) {}
    ~StringList() override;
    StringList& operator=(StringList const&) = delete;

    std::size_t size() const { return strings_.size(); }
    bool empty() const { return strings_.empty(); }
    /// A text by its place; a place beyond the list throws std::out_of_range.
    std::string const& at(std::size_t index) const { return strings_.at(index); }
    const_iterator begin() const { return strings_.begin(); }
    const_iterator end() const { return strings_.end(); }
    /// Whether the text is in the list.
    bool contains(std::string const& text) const;
    std::vector<std::string> const& strings() const { return strings_; }

    /// Another list with the same texts and, in derived classes, the same choice.
    virtual StrongPtr<StringList> clone() const;

protected:
    StringList(StringList const&) = default;

private:
    std::vector<std::string> strings_;
};

/// Whether both are null, or both have the same texts in the same order.
bool sameTexts(StrongPtr<StringList> const& left, StrongPtr<StringList> const& right);

/// A clone of the list, as a reference to its class; null for a null list.
template <typename List>
StrongPtr<List, StringList> cloned(StrongPtr<List, StringList> const& list) {
    return list ? StrongPtr<List, StringList>(DynPtr<List, StringList>(list->clone())) : nullptr;
}

} // namespace Tessera
