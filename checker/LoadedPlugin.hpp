#pragma once

#include <checker/Findings.hpp>
#include <checker/Recorders.hpp>
#include <functional>
#include <lattice/InputRegistry.hpp>
#include <lattice/PluginLoader.hpp>
#include <string>
#include <vector>

namespace Checker {

/// The plug-in that is checked, loaded as a host loads it. Loading thread.
class LoadedPlugin {
public:
    /// Loads the file. A fault if that fails.
    LoadedPlugin(std::string file, Findings& findings);
    /// Unloads it, if that was not done yet. A fault if that fails.
    ~LoadedPlugin();
    LoadedPlugin(LoadedPlugin const&) = delete;
    LoadedPlugin& operator=(LoadedPlugin const&) = delete;

    /// Whether it is loaded.
    bool isLoaded() const { return isLoaded_; }
    /// Unloads it. A fault if that fails; what was deleted later is deleted before.
    void unload();
    /// The creators that it registered, in the order of their registration.
    std::vector<Kolt::InputRegistry::Entry> creators() const;
    /// Calls a function with each of its creators; the findings name the editor meanwhile.
    void forEachEditor(std::function<void(Kolt::InputRegistry::Entry const&)> const& function);
    /// The host's warnings since it was loaded.
    RecordedWarnings& warnings() { return warnings_; }

private:
    std::string const file_;
    Findings& findings_;
    RecordedWarnings warnings_;
    Kolt::PluginLoader loader_;
    bool isLoaded_ = false;
};

} // namespace Checker
