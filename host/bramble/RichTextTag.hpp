#pragma once

#include <string>
#include <string_view>

namespace Kolt {

/// A tag of a rich text, read as tolerantly as Qt does. Used by this library alone. Any thread.
class RichTextTag {
public:
    /// Reads the tag whose "<" is at `place` and moves `place` behind it. A tag that does not end takes the whole rest.
    RichTextTag(std::string_view text, std::size_t& place);

    /// In small letters; empty for comments and declarations.
    std::string const& name() const { return name_; }
    /// Whether it is "</name>".
    bool closes() const { return closes_; }
    /// Whether it may be shown.
    bool isAllowed() const;
    /// Whether it contains nothing, as a line break.
    bool isVoid() const;
    /// Whether an open one ends where another one of its name begins, as a paragraph.
    bool endsAtNext() const;
    /// Whether what follows, up to its closing tag, is nothing to show.
    bool hidesContent() const;
    /// What takes the place of one that may not be shown: a row of a table begins a line, a cell follows a space.
    std::string replacement() const;
    /// The tag with its allowed attributes.
    std::string harmless() const;

    /// Whether Qt knows an element of this name, which is given in small letters.
    static bool isElement(std::string_view name);

private:
    void readAttributes(std::string_view text, std::size_t& place);
    void addAttribute(std::string const& name, std::string_view value);

    std::string name_;
    bool closes_ = false;
    bool closesItself_ = false;
    // As they are written.
    std::string attributes_;
};

} // namespace Kolt
