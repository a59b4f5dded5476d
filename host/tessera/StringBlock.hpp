#pragma once

#include <cstddef>
#include <mutex>
#include <string>
#include <string_view>
#include <tessera/Export.hpp>
#include <unordered_map>
#include <vector>

namespace Tessera {

/// The texts of a list and their index. The texts never change, so a list and all its clones share one block.
///
/// The index is built by the first search, once for all that share the block. Its cost is linear in the number of
/// texts; from then on a search does not depend on it. Any thread. Prints nothing.
class TALO_EXPORT StringBlock {
public:
    /// These texts, in this order.
    explicit StringBlock(std::vector<std::string> strings);
    ~StringBlock();
    // The index refers to the texts of this block.
    StringBlock(StringBlock const&) = delete;
    StringBlock& operator=(StringBlock const&) = delete;

    /// The texts, in the order in which they were given. Duplicates are kept.
    std::vector<std::string> const& strings() const { return strings_; }
    /// The first place of a text, from 0; the number of texts if it is not in the list. Compared byte for byte.
    std::size_t find(std::string_view text) const;
    /// The last place of a text; the number of texts if it is not in the list. In a list in which no text occurs twice
    /// it costs what find() does.
    std::size_t findLast(std::string_view text) const;
    /// The first place of the text at `place`. REQUIRES: `place` is below the number of texts.
    std::size_t firstPlace(std::size_t place) const;

private:
    struct Index {
        // The keys look into the texts.
        std::unordered_map<std::string_view, std::size_t> places;
        // By place; empty if no text occurs twice.
        std::vector<std::size_t> firstPlaces;
    };
    Index const& index() const;

    std::vector<std::string> const strings_;
    mutable std::once_flag indexed_;
    mutable Index index_;
};

} // namespace Tessera
