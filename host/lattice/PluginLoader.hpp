#pragma once

#include <lattice/Initialization.hpp>
#include <memory>
#include <string>
#include <tessera/Export.hpp>
#include <typeinfo>
#include <vector>

namespace Kolt {

/// Loads and unloads plug-in files with the system's loader. The destructor unloads all files, the latest first.
/// REQUIRES: the loader is destroyed before `main` returns. Loading thread, which is the user-interface thread if there
/// is one.
class TALO_EXPORT PluginLoader {
public:
    /// The result of an operation. The message is a sentence for people if it failed, and empty otherwise.
    struct [[nodiscard]] Outcome {
        /// Whether it succeeded.
        bool ok;
        /// Why it failed, a sentence for people; empty when it succeeded.
        std::string message;
    };

    /// `host` is passed to the plug-ins. REQUIRES: it outlives the loader.
    explicit PluginLoader(VInitialization& host);
    /// For a host whose VInitialization does nothing of its own.
    PluginLoader();
    ~PluginLoader();
    PluginLoader(PluginLoader const&) = delete;
    PluginLoader& operator=(PluginLoader const&) = delete;

    /// Opens the file, finds its export (exportName) and calls it. Fails if it is no regular file of at most 256 MB, if
    /// the file cannot be opened, lacks the
    /// export, or says that it is not compatible with the host; the message names the step and the system's reason, and
    /// the file is closed again. Also fails, without an effect, for a file that is loaded already.
    Outcome load(std::string const& file);
    /// Closes a file that was loaded. Fails while an editor or icon of the file exists. The records that the file gave
    /// to undo histories are forgotten in all of them (UndoHistory::forgetEverywhere), as their code is unloaded.
    Outcome unload(std::string const& file);
    /// The loaded files, with the names that were given to load(), in order of loading.
    std::vector<std::string> files() const;
    /// How many editors and icons of a loaded file exist; 0 for a file that is not loaded.
    int livingEditors(std::string const& file) const;
    /// The name of the function that a plug-in file must export: a fixed prefix and the base name of the file.
    static std::string exportName(std::string const& file);

private:
    class Plugin;
    using Plugins = std::vector<std::unique_ptr<Plugin>>;
    Plugins::const_iterator find(std::string const& file) const;

    VInitialization& host_;
    Plugins plugins_;
};

} // namespace Kolt
