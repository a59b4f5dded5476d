#pragma once

#include <lattice/Initialization.hpp>
#include <memory>
#include <string>
#include <tessera/Export.hpp>
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

    /// Loads a plug-in file and calls its export (exportName). Before anything of it runs, the file itself is looked at
    /// (PluginFile). Fails for a file that cannot be loaded, lacks its export, was built for another interface of the
    /// host, says that it is not compatible with the host, or whose export throws; the message names the file and the
    /// reason. What the file has registered until then is removed, and the file is closed again. Also fails, without an
    /// effect, for a file that is loaded already, by whatever name or link.
    Outcome load(std::string const& file);
    /// Closes a file that was loaded, by its name, a link to it, or the name that was given to load(). Fails, without
    /// an effect, while code of the file is running on this thread, and while objects of its types are in use: editors,
    /// widgets, icons, values, records, creators, interfaces (PluginUses). Code of the file that other threads execute
    /// cannot be seen: a plug-in ends its threads itself. Also fails if something else keeps the file in memory; it is
    /// still one of files() then.
    ///
    /// The records that the file gave to undo histories are forgotten in all of them (UndoHistory::forgetEverywhere),
    /// as their code is unloaded. What a file has registered and does not unregister is removed, with a warning
    /// (VActionNotifier::Warning).
    Outcome unload(std::string const& file);
    /// Succeeds if no code of the loaded files is running on this thread, as it must be to unload all of them. A host
    /// asks before it closes editors in order to unload.
    Outcome checkIdle() const;
    /// The loaded files, with the names that were given to load(), in order of loading.
    std::vector<std::string> files() const;
    /// How many notifiers of a loaded file exist, which are its editors and some of its icons; 0 for a file that is not
    /// loaded.
    int livingEditors(std::string const& file) const;
    /// The name of the function that a plug-in file must export: a fixed prefix and the base name of the file.
    static std::string exportName(std::string const& file);

private:
    struct Plugin;
    using Plugins = std::vector<std::unique_ptr<Plugin>>;
    struct Closing {
        // Why the plug-in was not closed, a sentence for people; empty if it was.
        std::string message;
        // What it left behind, a sentence without a full stop; empty for nothing.
        std::string remains;
        // Whether it was not closed because something else holds the file.
        bool isHeldByOthers = false;
    };
    Plugins::const_iterator find(std::string const& file) const;
    // Of a plug-in whose library was just loaded.
    Outcome start(std::unique_ptr<Plugin> plugin);
    // Closes a plug-in that cannot be used, and says so with the message.
    Outcome discard(std::unique_ptr<Plugin> plugin, std::string message);
    Outcome unload(Plugins::const_iterator place);
    // Fails while code of the plug-in is running on this thread.
    static Outcome checkIdle(Plugin const& plugin);
    // Why a plug-in must stay loaded; empty if it need not.
    static std::string reasonToStay(Plugin const& plugin);
    Closing close(Plugins::const_iterator place);

    VInitialization& host_;
    Plugins plugins_;
};

} // namespace Kolt
