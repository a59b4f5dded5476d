#pragma once

#include <lattice/Initialization.hpp>

namespace Kolt {

/// A plug-in's load/unload callback, with the arguments of a system loader after the plug-in's name: module handle,
/// reason (0 process detach, 1 process attach, 2 thread attach, 3 thread detach), reserved pointer. Reports these four
/// reasons to the host and ignores any other. Returns 1, success, in every case. Loading thread; the thread reasons on
/// their thread.
inline int loadCallback(char const* plugin, void* /*module*/, unsigned long reason, void* /*reserved*/) {
    // The loader numbers detach 0 and attach 1, the host the other way round.
    VInitialization::InitPluginReason const reasons[] = {VInitialization::Detach, VInitialization::Attach,
                                                         VInitialization::ThreadAttach, VInitialization::ThreadDetach};
    if (reason < sizeof reasons / sizeof *reasons)
        VInitialization::initPlugin(reasons[reason], plugin, "TALO_API_VERSION");
    return 1;
}

/// Calls the load callback for systems whose loader calls none: reports attach when it is made and detach when it is
/// destroyed. A static object without an initialisation priority is made after every creator and destroyed before any
/// of them, when the file is closed and at the end of the process.
class LoadReport {
public:
    /// Reports attach. `plugin` is kept as a pointer: a literal.
    explicit LoadReport(char const* plugin) : plugin_(plugin) { loadCallback(plugin_, nullptr, 1, nullptr); }
    /// Reports detach.
    ~LoadReport() { loadCallback(plugin_, nullptr, 0, nullptr); }
    LoadReport(LoadReport const&) = delete;
    LoadReport& operator=(LoadReport const&) = delete;

private:
    char const* plugin_;
};

} // namespace Kolt

#ifdef _WIN32
// Windows calls the load callback by itself.
#define TALO_PLUGIN_EXPORT __declspec(dllexport)
#define TALO_PLUGIN_LOAD_REPORT(name)                                                                                  \
    extern "C" int __stdcall DllMain(void* module, unsigned long reason, void* reserved) {                             \
        return Kolt::loadCallback(#name, module, reason, reserved);                                                    \
    }                                                                                                                  \
    static_assert(true, "takes the semicolon")
#else
#define TALO_PLUGIN_EXPORT __attribute__((visibility("default")))
#define TALO_PLUGIN_LOAD_REPORT(name) static Kolt::LoadReport const taloLoadReport(#name)
#endif

/// Makes a library the plug-in `name`: one of its sources says `TALO_PLUGIN(name);` once, outside of any namespace.
/// `name` is an identifier and the name of the plug-in's file, as talo_add_plugin names it.
///
/// It defines the one exported function, which says whether the plug-in can work with the host `host`, which must not
/// be null. The host finds the function by its name, which carries the date of the interface, and calls it once after
/// loading, on the loading thread; nothing is kept. It also reports to the host when the plug-in was loaded, after
/// every static creator was registered, and before it is unloaded, while all of them still are.
#define TALO_PLUGIN(name)                                                                                              \
    extern "C" TALO_PLUGIN_EXPORT bool TALO_API_2023_MAR_29__##name(Kolt::VInitialization const* host) {               \
        return host->IsCompatible("TALO_API_VERSION");                                                                 \
    }                                                                                                                  \
    TALO_PLUGIN_LOAD_REPORT(name)
