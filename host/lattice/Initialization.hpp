#pragma once

namespace Kolt {

/// The host as plug-ins see it while they load and unload.
class VInitialization {
public:
    /// Why a plug-in calls. Note that attach is 0 and detach 1.
    enum InitPluginReason { Attach = 0, Detach = 1, ThreadAttach = 2, ThreadDetach = 3 };

    VInitialization();
    virtual ~VInitialization();

    /// The key of the interface that this host offers: "TALO_API_VERSION".
    static char const* apiKey();

    /// Called by a plug-in when it was loaded and its creators stand, and before it is unloaded and they go. Loading
    /// thread; the thread reasons on the thread that they are about. Observers are told, nothing else happens.
    static void initPlugin(InitPluginReason reason, char const* pluginName, char const* apiKey);
    /// Whether a plug-in built for the interface named by the key can work with this host. Null: no.
    virtual bool IsCompatible(char const* key) const;
};

} // namespace Kolt
