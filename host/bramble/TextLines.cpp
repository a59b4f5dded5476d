#include <bramble/TextLines.hpp>

#include <cstddef>

namespace Kolt {

namespace {

std::string textOfLine(std::string const& line) {
    std::string text;
    for (std::size_t place = 0; place < line.size(); ++place) {
        char const next = place + 1 < line.size() ? line[place + 1] : '\0';
        bool const isEscape = line[place] == '\\' && (next == 'n' || next == '\\');
        if (isEscape)
            ++place;
        text += isEscape && next == 'n' ? '\n' : line[place];
    }
    return text;
}

} // namespace

std::string lineOfText(std::string const& text) {
    std::string line;
    for (std::size_t place = 0; place < text.size(); ++place) {
        char const next = place + 1 < text.size() ? text[place + 1] : '\0';
        if (text[place] == '\n')
            line += "\\n";
        else if (text[place] == '\\' && (next == 'n' || next == '\\' || next == '\n'))
            line += "\\\\";
        else
            line += text[place];
    }
    return line;
}

std::vector<std::string> textsOfLines(std::string const& lines) {
    std::vector<std::string> texts;
    if (lines.empty())
        return texts;
    std::size_t begin = 0;
    for (auto end = lines.find('\n'); end != std::string::npos; end = lines.find('\n', begin)) {
        texts.push_back(textOfLine(lines.substr(begin, end - begin)));
        begin = end + 1;
    }
    texts.push_back(textOfLine(lines.substr(begin)));
    return texts;
}

} // namespace Kolt
