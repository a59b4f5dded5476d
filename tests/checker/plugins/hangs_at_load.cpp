// It never comes to the end of its loading.

#include "PlainEditor.hpp"
#include <unistd.h>

namespace {

int const number = [] {
    for (;;)
        pause();
    return 0;
}();

} // namespace

PLANT(PlainEditor, hangs_at_load);
