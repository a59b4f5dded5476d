#pragma once

#include <string>
#include <tessera/Export.hpp>

namespace Tessera {

/// A message as a terminal may print it, in one line: control characters and bytes that are not UTF-8, which may come
/// from the name of a file and command the terminal, are written as "\x1b", a newline as "\n". All else stays. Any
/// thread.
[[nodiscard]] TALO_EXPORT std::string terminalText(std::string const& message);

} // namespace Tessera
