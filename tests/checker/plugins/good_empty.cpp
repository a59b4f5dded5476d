// It registers nothing.

#include "PlainEditor.hpp"

TALO_PLUGIN(good_empty);
