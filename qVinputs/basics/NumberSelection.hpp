#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Kolt {

/// Rows of a list, counted from 0: `first`, `first + step`, `first + 2 * step` and so on, as far as they lie before
/// `end`. `first` does lie before `end`, and the step is at least 1.
struct RowSeries {
    std::uint64_t first;
    std::uint64_t end;
    std::uint64_t step;
};

/// Reads the language in which rows are chosen by their numbers, and gives the chosen rows in the order in which the
/// text names them; rows may be named more than once. `rowCount` is the number of rows of the list.
///
/// The text is a list of tokens with commas between them, each of them read in this order:
/// - With a "-", the rows from one number to another, both included and in either order: "0-5". Nothing where one of
///   them is not a row of the list, or there is only white space on one side of the first "-".
/// - With "th", "nd", "rd" or "st", every row whose number is a multiple of the number before it, shifted by the number
///   after the first "+": "2nd" is 0, 2, 4, ..., "4th+2" is 2, 6, 10, ... A step that is missing or 0 counts as 1.
/// - Else a single row. Nothing for one that the list does not have, or a token of white space.
///
/// Numbers are decimal, whatever the locale. White space before a number and anything after its digits are skipped;
/// without digits it reads as 0, and beyond 32 bits as the largest number of 32 bits, signed for the rows and unsigned
/// for steps and shifts. No text is an error. Any thread.
std::vector<RowSeries> rowsByNumber(std::string const& text, std::uint64_t rowCount);

} // namespace Kolt
