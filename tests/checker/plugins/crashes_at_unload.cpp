// It crashes while it is unloaded.

#include "PlainEditor.hpp"
#include <csignal>

namespace {

struct Crash {
    ~Crash() { std::raise(SIGSEGV); }
} const crash;

} // namespace

PLANT(PlainEditor, crashes_at_unload);
