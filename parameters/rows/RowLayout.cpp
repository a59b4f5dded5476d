#include <parameters/rows/RowLayout.hpp>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Talo {

std::size_t RowLayout::addSection() {
    isArranged_ = false;
    sections_.push_back({});
    sections_.back().firstRow = rows_.size();
    return sections_.size() - 1;
}

void RowLayout::setSectionMargins(std::size_t section, SectionMargins const& margins) {
    sections_[section].margins = margins;
    isArranged_ = false;
}

bool RowLayout::setHeight(std::size_t row, int height) {
    bool const isNewEstimate = std::exchange(estimates_[rows_[row].heightClass], height) != height;
    rows_[row].measured = true;
    bool const hasChanged = std::exchange(rows_[row].height, height) != height;
    isArranged_ = isArranged_ && !isNewEstimate && !hasChanged;
    return hasChanged;
}

void RowLayout::dropHeight(std::size_t row) {
    auto& dropped = rows_[row];
    dropped.measured = false;
    auto const estimate = estimates_[dropped.heightClass];
    isArranged_ = isArranged_ && (estimate == 0 || estimate == dropped.height);
}

void RowLayout::setFolded(std::size_t section, bool folded) {
    if (std::exchange(sections_[section].folded, folded) != folded)
        isArranged_ = false;
}

void RowLayout::setShown(std::size_t row, bool shown) {
    if (std::exchange(rows_[row].shown, shown) != shown)
        isArranged_ = false;
}

void RowLayout::setJoined(std::size_t row, bool joined) {
    if (std::exchange(rows_[row].joined, joined) != joined)
        isArranged_ = false;
}

void RowLayout::forgetEstimates() {
    std::fill(estimates_.begin(), estimates_.end(), 0);
    isArranged_ = false;
}

std::size_t RowLayout::shownCount() const {
    return static_cast<std::size_t>(
        std::count_if(rows_.begin(), rows_.end(), [](auto const& row) { return row.shown; }));
}

void RowLayout::arrange() {
    if (std::exchange(isArranged_, true))
        return;
    int top = spacing_.top;
    for (auto& section : sections_) {
        section.top = top;
        arrange(section);
        if (section.height > 0)
            top += section.height + spacing_.betweenSections;
    }
    totalHeight_ = top - spacing_.betweenSections + spacing_.bottom;
}

inline int RowLayout::neededHeight(Row& row) const {
    if (!row.shown)
        return 0;
    if (!row.measured && estimates_[row.heightClass] > 0)
        row.height = estimates_[row.heightClass];
    return row.height;
}

void RowLayout::arrange(Section& section) {
    bool const isFolded = section.folded;
    int const betweenRows = spacing_.betweenRows;
    // The rows of a folded section are where it ends, so that places never go up.
    int bottom = section.top + (isFolded ? section.margins.folded : section.margins.top);
    bool isEmpty = true;
    auto row = rows_.begin() + static_cast<std::ptrdiff_t>(section.firstRow);
    auto const sectionEnd = row + static_cast<std::ptrdiff_t>(section.rowCount);
    while (row != sectionEnd) {
        int needed = neededHeight(*row);
        auto end = row + 1;
        for (; end != sectionEnd && end->joined; ++end)
            needed = std::max(needed, neededHeight(*end));
        isEmpty = isEmpty && needed == 0;
        int const height = isFolded ? 0 : needed;
        for (; row != end; ++row) {
            row->top = bottom;
            row->placeHeight = height;
        }
        bottom += height > 0 ? height + betweenRows : 0;
    }
    if (isEmpty)
        section.height = 0;
    else if (section.folded)
        section.height = section.margins.folded;
    else
        section.height = bottom - betweenRows + section.margins.bottom - section.top;
}

std::vector<std::size_t> RowLayout::farRows(std::set<std::size_t> const& rows, int top, int bottom,
                                            std::size_t nearest) const {
    auto const distance = [&](std::size_t row) { return std::max(top - this->bottom(row), this->top(row) - bottom); };
    std::vector<std::size_t> far;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(far), [&](auto const row) { return distance(row) > 0; });
    std::sort(far.begin(), far.end(),
              [&](auto const left, auto const right) { return distance(left) < distance(right); });
    far.erase(far.begin(), far.begin() + static_cast<std::ptrdiff_t>(std::min(nearest, far.size())));
    return far;
}

std::size_t RowLayout::firstRowBelow(int y) const {
    auto const found = std::partition_point(rows_.begin(), rows_.end(),
                                            [y](auto const& row) { return row.top + row.placeHeight <= y; });
    return static_cast<std::size_t>(found - rows_.begin());
}

} // namespace Talo
