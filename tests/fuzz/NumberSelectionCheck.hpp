#pragma once

#include "ReferenceNumberSelection.hpp"

#include <qVinputs/basics/NumberSelection.hpp>

/// Whether the plug-in reads a text like the reference implementation. The first byte of the input selects the number
/// of rows, the rest is the text.
inline bool readsLikeTheReference(std::string const& input) {
    static constexpr std::int64_t rowCounts[] = {0, 1, 2, 3, 9, 10, 11, 100, 257, 1000};
    if (input.empty())
        return true;
    auto const rowCount = rowCounts[static_cast<unsigned char>(input[0]) % (sizeof rowCounts / sizeof *rowCounts)];
    auto const text = input.substr(1);
    std::vector<std::int64_t> rows;
    for (auto const& series : Kolt::rowsByNumber(text, static_cast<std::uint64_t>(rowCount))) {
        if (series.step == 0 || series.first >= series.end || series.end > static_cast<std::uint64_t>(rowCount))
            return false;
        for (auto row = series.first; row < series.end; row += series.step)
            rows.push_back(static_cast<std::int64_t>(row));
    }
    return rows == reference::rowsByNumber(text, rowCount);
}
