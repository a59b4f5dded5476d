#pragma once

#include <functional>
#include <map>
#include <parameters/rows/ComponentColumns.hpp>
#include <parameters/rows/ParameterRow.hpp>
#include <parameters/rows/RowLayout.hpp>
#include <tessera/Export.hpp>
#include <vector>

namespace Talo {

/// The rows of a form that are components of vectors: their names, and their places side by side. Rows have the numbers
/// of the layout; lengths are in pixels. User-interface thread.
class TALO_EXPORT VectorRows {
public:
    /// `madeRow` gives the row of a number; null for one that was not made. Both must outlive the object.
    VectorRows(RowLayout& layout, std::function<ParameterRow*(std::size_t row)> madeRow);

    /// Takes the vectors of a form by the numbers of their first rows (FormPlan::vectors).
    void setVectors(std::map<std::size_t, ParameterVector> const& vectors);
    /// Joins the rows that are shown now. Returns the made rows whose names changed.
    std::vector<std::size_t> join();
    /// Gives a made row the names of its vector and component, if it has some.
    void showNames(std::size_t row);
    /// Puts as many components of the row's vector side by side as a line of this width has room for. Returns its made
    /// rows if that is another number than before.
    std::vector<std::size_t> fit(std::size_t row, int lineWidth, int nameColumn);
    /// Where a row is in a line of this width; the whole line for a row of its own.
    ComponentColumns::Span span(std::size_t row, int lineWidth, int nameColumn);

private:
    std::vector<std::size_t> madeRows(ComponentColumns::Vector const& vector) const;

    RowLayout& layout_;
    std::function<ParameterRow*(std::size_t)> const madeRow_;
    ComponentColumns columns_;
};

} // namespace Talo
