#pragma once

#include <functional>
#include <lattice/PluginLibrary.hpp>
#include <string>
#include <tessera/Reference.hpp>
#include <vector>

namespace Kolt {

/// What a plug-in has registered with the host, so that what is still registered after the plug-in was unloaded can be
/// removed. Its code is gone by then, so none of it may be used. User-interface thread.
class PluginRemains {
public:
    /// Notes what objects of the library's types are registered: creators, value creators, formats, managed
    /// objects, notifiers, receivers of warnings, and what is installed as the host's observer, speaker or notification
    /// thread. To be made just before the library is closed.
    explicit PluginRemains(PluginLibrary const& library);

    /// Removes what is still registered. To be called once, after the library was unloaded. Returns what was removed,
    /// for people: "2 creators, 1 observer"; empty if the plug-in took everything back.
    std::string cleanUp();

private:
    struct Registered {
        std::string kind;
        Tessera::WeakPtr<Tessera::ReferenceCounted> object;
        Tessera::ReferenceControl* control;
    };
    struct Installed {
        std::string kind;
        // Whether it is still installed, and removes it then.
        std::function<bool()> remove;
    };
    void add(std::string const& kind, Tessera::ReferenceCounted* object);
    void noteInstalled(PluginLibrary const& library);

    Tessera::AddressRange const range_;
    std::vector<Registered> registered_;
    std::vector<Installed> installed_;
};

} // namespace Kolt
