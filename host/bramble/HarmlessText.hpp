#pragma once

#include <string>
#include <string_view>
#include <tessera/Export.hpp>

namespace Kolt {

/// The text without what a label must not show. A plain text, UTF-8, is returned as it is. Of a rich text, which
/// is what Qt takes for one, remain the tags for characters, paragraphs, headings, lists and links, with the attributes
/// "href", "color", "align" and "size" alone. So nothing loads a picture, a style or any other resource. Tables, whose
/// layout takes long, become lines. At most MostNestedTags tags remain inside each other, and at most LongestRichText
/// bytes; a longer text ends with "…".
///
/// What is harmless already is returned unchanged if its tags are written in small letters and its attributes in double
/// quotation marks. The effort is proportional to the length. Any thread; prints nothing.
[[nodiscard]] TALO_EXPORT std::string harmlessText(std::string const& text);

/// Whether a label or a tool tip of Qt shows the text, UTF-8, as rich text. In doubt, which takes characters that are
/// not ASCII around the first tag, it says yes. Any thread.
[[nodiscard]] TALO_EXPORT bool isRichText(std::string_view text);

/// The most tags inside each other.
constexpr std::size_t MostNestedTags = 24;
/// The longest rich text, in bytes.
constexpr std::size_t LongestRichText = 8192;

} // namespace Kolt
