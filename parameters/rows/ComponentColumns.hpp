#pragma once

#include <map>
#include <parameters/rows/ParameterVector.hpp>
#include <parameters/rows/RowLayout.hpp>
#include <tessera/Export.hpp>

namespace Talo {

/// The rows of a form that are components of vectors, and how they stand side by side: up to four in a line, fewer
/// where the form is narrow. Rows have the numbers of the layout; lengths are in pixels. Knows no widgets.
class TALO_EXPORT ComponentColumns {
public:
    /// A vector in the form.
    struct Vector {
        ParameterVector parameters; ///< what its rows show
        std::size_t firstRow = 0;   ///< the row of the first component; the others follow
        std::size_t headedRow = 0;  ///< the row that shows the vector's name: the first that is shown
        int columns = 1;            ///< how many stand side by side
        /// The places of the components among the shown ones, counted from 0.
        std::vector<int> places;

        /// The number after the last of its rows.
        std::size_t endRow() const { return firstRow + parameters.members.size(); }
    };
    /// A part of a line.
    struct Span {
        int left = 0;  ///< from the left end of the line
        int width = 0; ///< of the part
    };

    /// No vectors.
    ComponentColumns() = default;
    /// The vectors by the numbers of their first rows (FormPlan::vectors).
    explicit ComponentColumns(std::map<std::size_t, ParameterVector> const& vectors);

    /// The vector that a row is a component of; null for none.
    Vector* find(std::size_t row);
    /// All vectors, by their first rows.
    std::map<std::size_t, Vector>& vectors() { return vectors_; }
    /// Chooses how many components stand side by side, where a line has this room for them and each needs at least
    /// `least`. Says whether it is another number than before.
    static bool fit(Vector& vector, int room, int least);
    /// Joins the rows of a vector in the layout, as they are shown now. Says whether another row shows the name.
    static bool join(Vector& vector, RowLayout& layout);
    /// Where the row of a vector is in a line of this width whose first part is for the vector's name.
    static Span span(Vector const& vector, std::size_t row, int lineWidth, int nameWidth);

private:
    std::map<std::size_t, Vector> vectors_;
};

} // namespace Talo
