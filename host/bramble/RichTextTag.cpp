#include <bramble/RichTextTag.hpp>

#include <algorithm>
#include <iterator>

namespace Kolt {

namespace {

template <std::size_t Count>
bool isOneOf(std::string_view name, std::string_view const (&names)[Count]) {
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

constexpr std::string_view allowedNames[] = {
    "a",   "address", "b",     "big",  "blockquote", "body", "br",   "center", "cite", "code", "dd",
    "dfn", "div",     "dl",    "dt",   "em",         "font", "h1",   "h2",     "h3",   "h4",   "h5",
    "h6",  "hr",      "html",  "i",    "kbd",        "li",   "nobr", "ol",     "p",    "pre",  "qt",
    "s",   "samp",    "small", "span", "strong",     "sub",  "sup",  "tt",     "u",    "ul",   "var"};

// Pictures and styles load something. The layout of tables takes long, of nested ones exponential time.
constexpr std::string_view refusedNames[] = {"caption", "head", "img",   "link", "meta",  "script", "style", "table",
                                             "tbody",   "td",   "tfoot", "th",   "thead", "title",  "tr"};

bool isSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool isNamePart(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string readName(std::string_view text, std::size_t& place) {
    std::string name;
    for (; place < text.size() && isNamePart(text[place]); ++place)
        name += lowered(text[place]);
    return name;
}

void skipSpace(std::string_view text, std::size_t& place) {
    while (place < text.size() && isSpace(text[place]))
        ++place;
}

std::string_view readValue(std::string_view text, std::size_t& place) {
    char const quote = place < text.size() ? text[place] : '\0';
    auto const start = place;
    if (quote != '"' && quote != '\'') {
        while (place < text.size() && !isSpace(text[place]) && text[place] != '>')
            ++place;
        return text.substr(start, place - start);
    }
    place = std::min(text.find(quote, start + 1), text.size());
    auto const value = text.substr(start + 1, place - start - 1);
    place = std::min(place + 1, text.size());
    return value;
}

} // namespace

RichTextTag::RichTextTag(std::string_view text, std::size_t& place) {
    if (text.compare(place, 4, "<!--") == 0) {
        auto const end = text.find("-->", place + 4);
        place = end == std::string_view::npos ? text.size() : end + 3;
        return;
    }
    ++place;
    closes_ = place < text.size() && text[place] == '/';
    if (closes_)
        ++place;
    skipSpace(text, place);
    name_ = readName(text, place);
    readAttributes(text, place);
}

void RichTextTag::readAttributes(std::string_view text, std::size_t& place) {
    while (place < text.size() && text[place] != '>') {
        closesItself_ = text[place] == '/';
        auto const name = readName(text, place);
        if (name.empty()) {
            ++place;
            continue;
        }
        skipSpace(text, place);
        if (place >= text.size() || text[place] != '=')
            continue;
        ++place;
        skipSpace(text, place);
        addAttribute(name, readValue(text, place));
    }
    place = std::min(place + 1, text.size());
}

void RichTextTag::addAttribute(std::string const& name, std::string_view value) {
    // A size of many digits would ask for huge letters.
    bool const isAllowed = (name == "href" && name_ == "a") || name == "color" || name == "align" ||
                           (name == "size" && name_ == "font" && value.size() <= 2);
    if (!isAllowed || closes_)
        return;
    attributes_ += ' ' + name + "=\"";
    for (char const c : value) {
        switch (c) {
        case '"':
            attributes_ += "&quot;";
            break;
        case '<':
            attributes_ += "&lt;";
            break;
        case '>':
            attributes_ += "&gt;";
            break;
        default:
            attributes_ += c;
        }
    }
    attributes_ += '"';
}

bool RichTextTag::isAllowed() const {
    return isOneOf(name_, allowedNames);
}

bool RichTextTag::isVoid() const {
    return isOneOf(name_, {"br", "hr"});
}

bool RichTextTag::endsAtNext() const {
    return isOneOf(name_, {"dd", "dt", "li", "p"});
}

bool RichTextTag::hidesContent() const {
    return !closes_ && isOneOf(name_, {"head", "script", "style", "title"});
}

std::string RichTextTag::replacement() const {
    if (closes_)
        return {};
    if (name_ == "tr")
        return "<br>";
    return isOneOf(name_, {"td", "th"}) ? " " : std::string();
}

std::string RichTextTag::harmless() const {
    return (closes_ ? "</" : "<") + name_ + attributes_ + (closesItself_ && !closes_ ? "/>" : ">");
}

bool RichTextTag::isElement(std::string_view name) {
    return isOneOf(name, allowedNames) || isOneOf(name, refusedNames);
}

} // namespace Kolt
