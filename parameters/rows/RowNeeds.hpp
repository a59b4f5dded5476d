#pragma once

#include <QSize>
#include <tessera/Export.hpp>
#include <tuple>

class QWidget;

namespace Talo {

/// What a row asks of its form. As long as it asks for the same, its place and its size are right. Lengths are in
/// pixels.
struct TALO_EXPORT RowNeeds {
    int nameWidth = 0;      ///< of the column of names
    int height = 0;         ///< at the row's width
    QSize hint;             ///< the row's size hint
    QSize least;            ///< the least size of the row
    QSize most;             ///< the greatest size of the row
    QSize editorHint;       ///< the size hint of the editor
    QSize editorLeast;      ///< the editor's hint for its least size
    QSize editorLeastLimit; ///< the least size that was set for the editor
    QSize editorMostLimit;  ///< the greatest size that was set for the editor

    /// The needs of a row with a layout; the editor is null for none.
    static RowNeeds of(QWidget const& row, QWidget const* editor, int nameWidth);

    bool operator==(RowNeeds const& other) const { return members() == other.members(); } ///< all of it
    bool operator!=(RowNeeds const& other) const { return !(*this == other); }            ///< something differs

private:
    std::tuple<int const&, int const&, QSize const&, QSize const&, QSize const&, QSize const&, QSize const&,
               QSize const&, QSize const&>
    members() const {
        return std::tie(nameWidth, height, hint, least, most, editorHint, editorLeast, editorLeastLimit,
                        editorMostLimit);
    }
};

} // namespace Talo
