#include <parameters/rows/RowSizes.hpp>

#include <utility>

namespace Talo {

RowSizes::RowSizes(RowLayout& layout, VectorRows& vectors, std::set<std::size_t> const& made, RowAt rowAt)
    : layout_(layout), vectors_(vectors), made_(made), rowAt_(std::move(rowAt)) {}

RowSizes::~RowSizes() = default;

bool RowSizes::measure(std::size_t place, int rowWidth) {
    auto& row = *rowAt_(place);
    bool const isWider = row.nameWidth() > nameWidth_;
    if (isWider) {
        nameWidth_ = row.nameWidth();
        for (auto const each : made_)
            rowAt_(each)->setNameWidth(nameColumn(rowWidth));
    }
    row.setNameWidth(nameColumn(rowWidth));
    auto const others = vectors_.fit(place, rowWidth, nameColumn(rowWidth));
    for (auto const other : others) {
        rowAt_(other)->setNameWidth(nameColumn(rowWidth));
        measureRow(other, rowWidth);
    }
    return measureRow(place, rowWidth) || isWider || !others.empty();
}

bool RowSizes::measureRow(std::size_t place, int rowWidth) {
    auto& row = *rowAt_(place);
    int const width = vectors_.span(place, rowWidth, nameColumn(rowWidth)).width;
    row.fitInto(width);
    int const wanted = row.hasHeightForWidth() ? row.heightForWidth(width)
                                               : qMax(row.sizeHint().height(), row.minimumSizeHint().height());
    // What the row asks for now is known.
    (void)row.takeSizeChange();
    return layout_.setHeight(place, wanted);
}

bool RowSizes::measureChanged(int rowWidth) {
    bool hasChanged = false;
    for (auto const place : made_)
        if (rowAt_(place)->takeLayout()) {
            if (rowAt_(place)->takeSizeChange())
                hasChanged = measure(place, rowWidth) || hasChanged;
            hasChanged = hasOtherSize(place, rowWidth) || hasChanged;
        }
    return hasChanged;
}

bool RowSizes::hasOtherSize(std::size_t place, int rowWidth) {
    int const width = vectors_.span(place, rowWidth, nameColumn(rowWidth)).width;
    return layout_.isShown(place) && rowAt_(place)->size() != QSize(width, layout_.height(place));
}

} // namespace Talo
