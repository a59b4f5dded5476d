#include <bramble/HarmlessText.hpp>

#include <algorithm>
#include <bramble/RichTextTag.hpp>
#include <vector>

namespace Kolt {

namespace {

// A character that is not ASCII may be a space for Qt.
bool mayBeSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r') || static_cast<unsigned char>(c) >= 0x80;
}

std::size_t afterSpace(std::string_view text, std::size_t place) {
    while (place < text.size() && mayBeSpace(text[place]))
        ++place;
    return place;
}

bool startsWith(std::string_view text, std::size_t place, std::string_view lowerCaseStart) {
    if (text.size() - place < lowerCaseStart.size())
        return false;
    return std::equal(lowerCaseStart.begin(), lowerCaseStart.end(), text.begin() + static_cast<std::ptrdiff_t>(place),
                      [](char left, char right) {
                          return left == right || (right >= 'A' && right <= 'Z' && left == right - 'A' + 'a');
                      });
}

/// Whether the first tag of a text, which starts at `open`, makes it rich for Qt.
bool isTagOfRichText(std::string_view text, std::size_t open) {
    auto const close = text.find('>', open);
    if (close == std::string_view::npos)
        return false;
    std::string name;
    for (auto place = open + 1; place < close; ++place) {
        char const c = text[place];
        bool const isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        if (isLetter || (c >= '0' && c <= '9'))
            name += isLetter ? static_cast<char>(c | 0x20) : c;
        else if (!name.empty() && (mayBeSpace(c) || (c == '/' && place + 1 == close)))
            break;
        else if (!mayBeSpace(c) && (!name.empty() || c != '!'))
            return false;
    }
    return RichTextTag::isElement(name);
}

/// Writes a rich text anew, with its harmless parts alone.
class HarmlessWriter {
public:
    explicit HarmlessWriter(std::string_view text) : text_(text) {}

    std::string write() {
        while (place_ < text_.size() && written_.size() < LongestRichText) {
            auto const open = std::min(text_.find('<', place_), text_.size());
            written_ += text_.substr(place_, open - place_);
            place_ = open;
            if (place_ < text_.size())
                writeTag();
        }
        shorten();
        return std::move(written_);
    }

private:
    void writeTag() {
        RichTextTag const tag(text_, place_);
        if (tag.hidesContent())
            skipContent(tag.name());
        else if (!tag.isAllowed())
            written_ += tag.replacement();
        else if (tag.closes() ? close(tag) : open(tag))
            written_ += tag.harmless();
    }
    bool open(RichTextTag const& tag) {
        if (tag.isVoid())
            return true;
        if (tag.endsAtNext() && !open_.empty() && open_.back() == tag.name())
            return true;
        if (open_.size() >= MostNestedTags)
            return false;
        open_.push_back(tag.name());
        return true;
    }
    bool close(RichTextTag const& tag) {
        auto const found = std::find(open_.rbegin(), open_.rend(), tag.name());
        if (found == open_.rend())
            return false;
        open_.erase(std::prev(found.base()), open_.end());
        return true;
    }
    void skipContent(std::string const& name) {
        for (;;) {
            place_ = std::min(text_.find("</", place_), text_.size());
            if (place_ == text_.size())
                return;
            auto behind = place_;
            RichTextTag const tag(text_, behind);
            if (tag.name() == name) {
                place_ = behind;
                return;
            }
            place_ += 2;
        }
    }
    void shorten() {
        if (written_.size() <= LongestRichText && place_ >= text_.size())
            return;
        auto end = std::min(written_.size(), LongestRichText);
        // Neither within a tag nor within a character.
        auto const tag = written_.rfind('<', end - 1);
        if (tag != std::string::npos && written_.find('>', tag) >= end)
            end = tag;
        while (end > 0 && (static_cast<unsigned char>(written_[end]) & 0xC0) == 0x80)
            --end;
        written_.resize(end);
        written_ += "…";
    }

    std::string_view const text_;
    std::size_t place_ = 0;
    std::string written_;
    std::vector<std::string> open_;
};

} // namespace

bool isRichText(std::string_view text) {
    auto start = afterSpace(text, 0);
    if (text.compare(start, 5, "<?xml") == 0) {
        auto const end = text.find("?>", start);
        start = afterSpace(text, end == std::string_view::npos ? text.size() : end + 2);
    }
    if (startsWith(text, start, "<!doc"))
        return true;
    auto const open = std::min(text.find_first_of("<\n", start), text.size());
    if (text.substr(0, open).find("&lt;", start) != std::string_view::npos)
        return true;
    return open < text.size() && text[open] == '<' && isTagOfRichText(text, open);
}

std::string harmlessText(std::string const& text) {
    return isRichText(text) ? HarmlessWriter(text).write() : text;
}

} // namespace Kolt
