#include "host/lattice/PluginLoaderTest.hpp"

// Null in a program without a leak checker. NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" [[gnu::weak]] void __lsan_disable();
// NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" [[gnu::weak]] void __lsan_enable();

PlantedLeak::PlantedLeak() {
    if (__lsan_disable)
        __lsan_disable();
}

PlantedLeak::~PlantedLeak() {
    if (__lsan_enable)
        __lsan_enable();
}
