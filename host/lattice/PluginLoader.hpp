#pragma once

#include <lattice/Initialization.hpp>
#include <memory>
#include <string>
#include <typeinfo>
#include <vector>

namespace Kolt {

/// Loads and unloads plug-in files with the system's loader. It closes what it loaded when it is destroyed, which must
/// happen before `main` returns. Loading thread, which is the user-interface thread where there is one.
class PluginLoader {
public:
    /// How a step ended; the message is empty when it worked and a sentence for people when it did not.
    struct Outcome {
        bool ok;
        std::string message;
    };

    /// `host` is handed to the plug-ins; it must outlive the loader.
    explicit PluginLoader(VInitialization& host);
    /// For a host whose VInitialization does nothing of its own.
    PluginLoader();
    ~PluginLoader();
    PluginLoader(PluginLoader const&) = delete;
    PluginLoader& operator=(PluginLoader const&) = delete;

    /// Opens the file, finds its export (the interface's prefix followed by the file's base name), calls it, and
    /// refuses a plug-in that says it is not compatible. A failing step is told by name with the system's reason; the
    /// file is then closed again. A file that is loaded already is left as it is and reported.
    Outcome load(std::string const& file);
    /// Closes a file that was loaded. Refused while an editor or icon made by it lives. Undo steps that it recorded are
    /// forgotten, as they can no longer be taken back.
    Outcome unload(std::string const& file);
    /// The loaded files, as they were given, in order of loading.
    std::vector<std::string> files() const;
    /// How many editors and icons made by a loaded file live; 0 for a file that is not loaded.
    int livingEditors(std::string const& file) const;
    /// The name of the export that a plug-in file must have.
    static std::string exportName(std::string const& file);

private:
    class Plugin;
    using Plugins = std::vector<std::unique_ptr<Plugin>>;
    Plugins::const_iterator find(std::string const& file) const;

    VInitialization& host_;
    Plugins plugins_;
};

} // namespace Kolt
