#include <lattice/Initialization.hpp>
#include <plugin/LoadCallback.hpp>

namespace Kolt {

int loadCallback(void*, unsigned long reason, void*) {
    // The loader numbers detach 0 and attach 1, the host the other way round.
    static constexpr VInitialization::InitPluginReason reasons[] = {
        VInitialization::Detach, VInitialization::Attach, VInitialization::ThreadAttach, VInitialization::ThreadDetach};
    if (reason < sizeof reasons / sizeof *reasons)
        VInitialization::initPlugin(reasons[reason], "qtalo_inputs", "TALO_API_VERSION");
    return 1;
}

} // namespace Kolt

#ifdef _WIN32

extern "C" int __stdcall DllMain(void* module, unsigned long reason, void* reserved) {
    return Kolt::loadCallback(module, reason, reserved);
}

#else

namespace {

/// Without a priority of its own it is made after every creator and destroyed before any of them, also at the end of
/// the process.
struct LoadReport {
    LoadReport() { Kolt::loadCallback(nullptr, 1, nullptr); }
    ~LoadReport() { Kolt::loadCallback(nullptr, 0, nullptr); }
} const loadReport;

} // namespace

#endif
