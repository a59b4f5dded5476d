#include <parameters/rows/RowLayout.hpp>

#include <algorithm>
#include <utility>

namespace Talo {

std::size_t RowLayout::addSection() {
    sections_.push_back({});
    sections_.back().firstRow = rows_.size();
    return sections_.size() - 1;
}

std::size_t RowLayout::addRow(std::size_t heightClass) {
    Row row;
    row.section = sections_.size() - 1;
    row.heightClass = heightClass;
    row.height = spacing_.unknownRowHeight;
    rows_.push_back(row);
    ++sections_.back().rowCount;
    if (heightClass >= estimates_.size())
        estimates_.resize(heightClass + 1);
    return rows_.size() - 1;
}

void RowLayout::setSectionMargins(std::size_t section, SectionMargins const& margins) {
    sections_[section].margins = margins;
}

bool RowLayout::setHeight(std::size_t row, int height) {
    estimates_[rows_[row].heightClass] = height;
    rows_[row].measured = true;
    return std::exchange(rows_[row].height, height) != height;
}

void RowLayout::dropHeight(std::size_t row) {
    rows_[row].measured = false;
}

void RowLayout::forgetEstimates() {
    std::fill(estimates_.begin(), estimates_.end(), 0);
}

std::size_t RowLayout::shownCount() const {
    return static_cast<std::size_t>(
        std::count_if(rows_.begin(), rows_.end(), [](auto const& row) { return row.shown; }));
}

void RowLayout::arrange() {
    int top = spacing_.top;
    for (auto& section : sections_) {
        section.top = top;
        arrange(section);
        if (section.height > 0)
            top += section.height + spacing_.betweenSections;
    }
    totalHeight_ = top - spacing_.betweenSections + spacing_.bottom;
}

void RowLayout::arrange(Section& section) {
    // The rows of a folded section are where it ends, so that places never go up.
    int bottom = section.top + (section.folded ? section.margins.folded : section.margins.top);
    bool isEmpty = true;
    for (auto index = section.firstRow; index < section.firstRow + section.rowCount; ++index) {
        auto& row = rows_[index];
        row.top = bottom;
        if (!row.shown)
            continue;
        isEmpty = false;
        if (section.folded)
            continue;
        if (!row.measured && estimates_[row.heightClass] > 0)
            row.height = estimates_[row.heightClass];
        bottom += row.height + spacing_.betweenRows;
    }
    if (isEmpty)
        section.height = 0;
    else if (section.folded)
        section.height = section.margins.folded;
    else
        section.height = bottom - spacing_.betweenRows + section.margins.bottom - section.top;
}

std::size_t RowLayout::firstRowBelow(int y) const {
    auto const found = std::partition_point(rows_.begin(), rows_.end(), [this, y](auto const& row) {
        bool const hasPlace = row.shown && !sections_[row.section].folded;
        return row.top + (hasPlace ? row.height : 0) <= y;
    });
    return static_cast<std::size_t>(found - rows_.begin());
}

} // namespace Talo
