#pragma once

#include <lattice/Initialization.hpp>
#include <string>

namespace Kolt {

class VInputCreatorBase;

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
