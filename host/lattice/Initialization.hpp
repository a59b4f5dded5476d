#pragma once

#include <lattice/InterfaceStamp.hpp>
#include <tessera/Export.hpp>

namespace Kolt {

/// The host as plug-ins see it when they are loaded and unloaded. A host makes one object and gives it to its
/// PluginLoader; it may override IsCompatible.
class TALO_EXPORT VInitialization {
public:
    /// Why a plug-in calls. Note that attach is 0 and detach 1.
    enum InitPluginReason { Attach = 0, Detach = 1, ThreadAttach = 2, ThreadDetach = 3 };

    VInitialization();
    virtual ~VInitialization();

    /// The key of the interface that this host offers: "TALO_API_VERSION".
    static char const* apiKey();

    /// Called by a plug-in: with Attach after its creators were constructed, with Detach before they are destroyed.
    /// The observer is notified (HostObserver), nothing else happens. Loading thread; with a thread reason the thread
    /// in question.
    static void initPlugin(InitPluginReason reason, char const* pluginName, char const* apiKey);
    /// Whether a plug-in that was built for the interface with this key can work with this host. False for null.
    virtual bool IsCompatible(char const* key) const;
};

} // namespace Kolt
