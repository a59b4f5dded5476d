// It ends the program while it is loaded.

#include "PlainEditor.hpp"
#include <cstdlib>

namespace {

int const number = [] {
    std::_Exit(0);
    return 0;
}();

} // namespace

PLANT(PlainEditor, exits_at_load);
