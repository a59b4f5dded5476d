// It needs a function that nobody has.

#include "PlainEditor.hpp"

int nobodyHasThis();

static int const number = nobodyHasThis();

PLANT(PlainEditor, unresolved);

int planted_number() {
    return number;
}
