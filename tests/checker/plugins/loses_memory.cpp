// Each load loses memory.

#include "PlainEditor.hpp"
#include <cstdlib>
#include <cstring>

namespace {

auto* const lost = std::memset(std::malloc(100000), 1, 100000);

} // namespace

PLANT(PlainEditor, loses_memory);
