#include <tessera/TerminalText.hpp>

#include <algorithm>
#include <cstdio>

namespace Tessera {

namespace {

/// How many bytes the character at a place takes; 0 for bytes that are no character of UTF-8.
std::size_t characterLength(std::string const& text, std::size_t place) {
    auto const first = static_cast<unsigned char>(text[place]);
    std::size_t const length = first < 0x80   ? 1
                               : first < 0xC2 ? 0
                               : first < 0xE0 ? 2
                               : first < 0xF0 ? 3
                               : first < 0xF5 ? 4
                                              : 0;
    if (length == 0 || place + length > text.size())
        return 0;
    auto const rest = text.begin() + static_cast<std::ptrdiff_t>(place) + 1;
    bool const continues = std::all_of(rest, rest + static_cast<std::ptrdiff_t>(length) - 1,
                                       [](char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; });
    return continues ? length : 0;
}

/// Whether a character is one of the controls U+0000 to U+001F and U+007F to U+009F, or turns the direction of the
/// text.
bool isControl(std::string const& character) {
    auto const first = static_cast<unsigned char>(character[0]);
    if (character.size() == 1)
        return first < 0x20 || first == 0x7F;
    if (character.size() == 2)
        return first == 0xC2 && static_cast<unsigned char>(character[1]) < 0xA0;
    return (character >= "\u202A" && character <= "\u202E") || (character >= "\u2066" && character <= "\u2069");
}

} // namespace

std::string terminalText(std::string const& message) {
    std::string text;
    for (std::size_t place = 0; place < message.size();) {
        auto const length = characterLength(message, place);
        auto const character = message.substr(place, std::max<std::size_t>(length, 1));
        place += character.size();
        if (length > 0 && !isControl(character)) {
            text += character;
        } else if (character == "\n") {
            text += "\\n";
        } else {
            for (char const byte : character) {
                char escape[8];
                std::snprintf(escape, sizeof escape, "\\x%02x",
                              static_cast<unsigned>(static_cast<unsigned char>(byte)));
                text += escape;
            }
        }
    }
    return text;
}

} // namespace Tessera
