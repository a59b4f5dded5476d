#include <qVinputs/basics/NumberSelection.hpp>

#include <algorithm>
#include <locale>
#include <optional>
#include <sstream>

namespace Kolt {

namespace {

bool isSpace(std::string const& text) {
    return text.find_first_not_of(" \t\n\v\f\r") == std::string::npos;
}

/// Stream extraction stores 0 where it finds no digits, and the largest number where the digits name a larger one.
template <typename Number>
Number readNumber(std::string const& text) {
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    Number number = 0;
    stream >> number;
    return number;
}

std::optional<std::uint64_t> readRow(std::string const& text, std::uint64_t rowCount) {
    auto const number = readNumber<std::int32_t>(text);
    auto const row = static_cast<std::uint64_t>(number);
    return number >= 0 && row < rowCount ? std::optional(row) : std::nullopt;
}

std::optional<RowSeries> readRange(std::string const& from, std::string const& to, std::uint64_t rowCount) {
    if (isSpace(from) || isSpace(to))
        return std::nullopt;
    auto const a = readRow(from, rowCount);
    auto const b = readRow(to, rowCount);
    if (!a || !b)
        return std::nullopt;
    return RowSeries{std::min(*a, *b), std::max(*a, *b) + 1, 1};
}

/// The place of the suffix by which a token names every n-th row. The suffixes are tried in this order.
std::size_t findSuffix(std::string const& token) {
    for (auto const* const suffix : {"th", "nd", "rd", "st"}) {
        auto const place = token.find(suffix);
        if (place != std::string::npos)
            return place;
    }
    return std::string::npos;
}

std::optional<RowSeries> readEveryNth(std::string const& token, std::size_t suffix, std::uint64_t rowCount) {
    std::uint64_t const step = std::max(readNumber<std::uint32_t>(token.substr(0, suffix)), std::uint32_t{1});
    auto const plus = token.find('+');
    std::uint64_t const shift = plus == std::string::npos ? 0 : readNumber<std::uint32_t>(token.substr(plus + 1));
    return shift < rowCount ? std::optional(RowSeries{shift, rowCount, step}) : std::nullopt;
}

std::optional<RowSeries> readToken(std::string const& token, std::uint64_t rowCount) {
    auto const minus = token.find('-');
    if (minus != std::string::npos)
        return readRange(token.substr(0, minus), token.substr(minus + 1), rowCount);
    auto const suffix = findSuffix(token);
    if (suffix != std::string::npos)
        return readEveryNth(token, suffix, rowCount);
    if (isSpace(token))
        return std::nullopt;
    auto const row = readRow(token, rowCount);
    return row ? std::optional(RowSeries{*row, *row + 1, 1}) : std::nullopt;
}

} // namespace

std::vector<RowSeries> rowsByNumber(std::string const& text, std::uint64_t rowCount) {
    std::vector<RowSeries> rows;
    std::istringstream tokens(text);
    for (std::string token; std::getline(tokens, token, ',');) {
        if (auto const series = readToken(token, rowCount))
            rows.push_back(*series);
    }
    return rows;
}

} // namespace Kolt
