// It crashes while it is loaded.

#include "PlainEditor.hpp"

namespace {

int const number = [] {
    int* volatile nowhere = nullptr;
    return *nowhere;
}();

} // namespace

PLANT(PlainEditor, crashes_at_load);
