// Each load leaves a file open.

#include "PlainEditor.hpp"
#include <fcntl.h>

namespace {

int const lost = open("/dev/null", O_RDONLY);

} // namespace

PLANT(PlainEditor, loses_files);
