#pragma once

#include <functional>
#include <parameters/rows/ParameterRow.hpp>
#include <parameters/rows/VectorRows.hpp>
#include <set>
#include <tessera/Export.hpp>

namespace Talo {

/// Measures the rows of a form for its layout, and knows how wide the column of names is. All lengths are in pixels;
/// rows have the numbers that they have in the layout. User-interface thread.
class TALO_EXPORT RowSizes {
public:
    /// Gives the row at a place; null if it does not exist.
    using RowAt = std::function<ParameterRow*(std::size_t place)>;

    /// `made` are the places of the rows that exist. Everything must outlive the sizes.
    RowSizes(RowLayout& layout, VectorRows& vectors, std::set<std::size_t> const& made, RowAt rowAt);
    ~RowSizes();

    /// Sets how wide the longest name is thought to be. Most names are narrower than the one with the most letters; a
    /// row that needs more widens the column.
    void setNameWidth(int width) { nameWidth_ = width; }
    /// The width of the column of names, which leaves more than half of a row of this width to the editors.
    int nameColumn(int rowWidth) const { return qMin(nameWidth_, rowWidth * 2 / 5); }

    /// Fits the row at a place into a form whose rows are this wide, and tells the layout its height. Says whether any
    /// row has another place now. REQUIRES: the row exists.
    bool measure(std::size_t place, int rowWidth);
    /// Measures the rows that ask for another size than before. Says whether any row has another place now, or has not
    /// the size of its place: some editors have the row adjust its size.
    bool measureChanged(int rowWidth);

private:
    bool measureRow(std::size_t place, int rowWidth);
    bool hasOtherSize(std::size_t place, int rowWidth);

    RowLayout& layout_;
    VectorRows& vectors_;
    std::set<std::size_t> const& made_;
    RowAt const rowAt_;
    // In one font it only ever grows, so that the editors stay in their place when another pool is chosen.
    int nameWidth_ = 0;
};

} // namespace Talo
