// A plain plug-in.

#include "PlainEditor.hpp"

PLANT(PlainEditor, good_plain);
