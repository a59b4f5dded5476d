#pragma once

#include <lattice/Initialization.hpp>
#include <string>
#include <tessera/Export.hpp>

namespace Kolt {

class VInputCreatorBase;

/// Observes in which order plug-ins register creators, attach, detach and unregister. All operations do nothing unless
/// they are overridden. Value types are given by their readable names (Tessera::Typename). Loading thread.
class TALO_EXPORT HostObserver {
public:
    virtual ~HostObserver();
    /// A creator was registered for a value type.
    virtual void creatorRegistered(std::string const& valueType, VInputCreatorBase const& creator);
    /// registerVInput returned false.
    virtual void creatorRefused(std::string const& valueType);
    /// A creator is about to be destroyed and was unregistered.
    virtual void creatorUnregistered(std::string const& valueType, VInputCreatorBase const& creator);
    /// A creator of value objects was registered (VValueCreator).
    virtual void valueCreatorRegistered(std::string const& valueType);
    /// A plug-in called VInitialization::initPlugin; null texts are passed as empty ones.
    virtual void pluginCalled(VInitialization::InitPluginReason reason, std::string const& pluginName,
                              std::string const& key);

    /// The installed observer; never null.
    static HostObserver& theObserver();
    /// Installs an observer, which is not owned; null installs one that does nothing. REQUIRES: the observer lives
    /// until another one is installed; if a plug-in is still loaded at exit, until the end of the process.
    static void setObserver(HostObserver* observer);
};

} // namespace Kolt
