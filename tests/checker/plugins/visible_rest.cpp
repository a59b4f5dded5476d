// It exports more than the one function.

#include "PlainEditor.hpp"

__attribute__((visibility("default"))) int planted_visible_number = 1;

PLANT(PlainEditor, visible_rest);
