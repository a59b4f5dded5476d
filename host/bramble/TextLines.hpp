#pragma once

#include <string>
#include <tessera/Export.hpp>
#include <vector>

namespace Kolt {

/// A text as one line: a line feed is written as "\n", and a backslash is doubled where it could be read as a part of
/// that or of a doubled one. Most texts are written as they are. Any thread.
TALO_EXPORT std::string lineOfText(std::string const& text);

/// The texts of the lines that line feeds separate, as lineOfText wrote them; a line feed at the end is followed by an
/// empty text. None for the empty text. Any thread.
std::vector<std::string> textsOfLines(std::string const& lines);

} // namespace Kolt
