#pragma once

#include <QString>
#include <tessera/Export.hpp>

namespace Talo {

/// A text from a file as a tool tip that shows it as it is, with its lines and spaces, whatever it looks like: Qt would
/// take one that contains a tag for rich text. A text of more than 2,000 characters is shortened. Any other text is
/// returned unchanged. Any thread.
[[nodiscard]] TALO_EXPORT QString plainToolTip(QString const& text);

} // namespace Talo
