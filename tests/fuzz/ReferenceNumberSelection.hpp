#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

/// A reference implementation of the language of row numbers, which shares no code with the plug-in's. Returns every
/// selected row, in order and as often as it is named.
namespace reference {

inline bool isBlank(char character) {
    return character == ' ' || (character >= '\t' && character <= '\r');
}

inline bool isBlank(std::string const& text) {
    for (char const character : text) {
        if (!isBlank(character))
            return false;
    }
    return true;
}

/// Reads spaces, a sign and digits; 0 without digits. Stops growing far beyond 32 bits.
inline std::int64_t number(std::string const& text) {
    std::size_t place = 0;
    while (place < text.size() && isBlank(text[place]))
        ++place;
    bool negative = false;
    if (place < text.size() && (text[place] == '+' || text[place] == '-'))
        negative = text[place++] == '-';
    std::int64_t value = 0;
    for (; place < text.size() && text[place] >= '0' && text[place] <= '9'; ++place) {
        if (value < (std::int64_t{1} << 40))
            value = value * 10 + (text[place] - '0');
    }
    return negative ? -value : value;
}

inline std::int64_t signedNumber(std::string const& text) {
    auto const value = number(text);
    if (value > INT32_MAX)
        return INT32_MAX;
    return value < INT32_MIN ? INT32_MIN : value;
}

inline std::int64_t unsignedNumber(std::string const& text) {
    auto const value = number(text);
    return value > std::int64_t{UINT32_MAX} ? std::int64_t{UINT32_MAX} : value;
}

inline void token(std::string const& text, std::int64_t rowCount, std::vector<std::int64_t>& rows) {
    auto const minus = text.find('-');
    if (minus != std::string::npos) {
        auto const left = text.substr(0, minus);
        auto const right = text.substr(minus + 1);
        if (isBlank(left) || isBlank(right))
            return;
        auto a = signedNumber(left);
        auto b = signedNumber(right);
        if (a < 0 || a >= rowCount || b < 0 || b >= rowCount)
            return;
        if (b < a)
            std::swap(a, b);
        for (auto row = a; row <= b; ++row)
            rows.push_back(row);
        return;
    }
    for (auto const* const suffix : {"th", "nd", "rd", "st"}) {
        auto const place = text.find(suffix);
        if (place == std::string::npos)
            continue;
        auto step = unsignedNumber(text.substr(0, place));
        if (step == 0)
            step = 1;
        auto const plus = text.find('+');
        auto const start = plus == std::string::npos ? 0 : unsignedNumber(text.substr(plus + 1));
        for (auto row = start; row < rowCount; row += step)
            rows.push_back(row);
        return;
    }
    if (isBlank(text))
        return;
    auto const row = signedNumber(text);
    if (row >= 0 && row < rowCount)
        rows.push_back(row);
}

inline std::vector<std::int64_t> rowsByNumber(std::string const& text, std::int64_t rowCount) {
    std::vector<std::int64_t> rows;
    std::size_t start = 0;
    while (start < text.size()) {
        auto end = text.find(',', start);
        if (end == std::string::npos)
            end = text.size();
        token(text.substr(start, end - start), rowCount, rows);
        start = end + 1;
    }
    return rows;
}

} // namespace reference
