#pragma once

#include <string>

namespace Kolt {

class VInputCreatorBase;

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

/// Hears in which order plug-ins register, attach, detach and take back. All operations do nothing unless they are
/// overridden. Loading thread.
class HostObserver {
public:
    virtual ~HostObserver();
    virtual void creatorRegistered(std::string const& valueType, VInputCreatorBase const& creator);
    virtual void creatorRefused(std::string const& valueType);
    virtual void creatorUnregistered(std::string const& valueType, VInputCreatorBase const& creator);
    virtual void valueCreatorRegistered(std::string const& valueType);
    virtual void pluginCalled(VInitialization::InitPluginReason reason, std::string const& pluginName,
                              std::string const& key);

    /// The installed observer; never null.
    static HostObserver& theObserver();
    /// Installs an observer, which stays the caller's and must outlive its use, where a plug-in is still loaded then
    /// also the end of the process; null installs one that does nothing.
    static void setObserver(HostObserver* observer);
};

} // namespace Kolt
