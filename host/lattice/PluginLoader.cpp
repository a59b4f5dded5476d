#include <lattice/PluginLoader.hpp>

#include <algorithm>
#include <filesystem>
#include <lattice/ActionNotifier.hpp>
#include <lattice/InputFaults.hpp>
#include <lattice/PluginFile.hpp>
#include <lattice/PluginRemains.hpp>
#include <lattice/PluginUses.hpp>
#include <lattice/UndoHistory.hpp>
#include <tessera/LivingObjects.hpp>
#include <tessera/NoDestructor.hpp>

namespace Kolt {

namespace {

using Export = bool (*)(VInitialization*);

// Never destroyed: plug-ins may keep a pointer to it.
VInitialization& plainHost() {
    static Tessera::NoDestructor<VInitialization> host;
    return *host;
}

/// Calls a plug-in's export. Returns why the plug-in cannot be used, as the end of a sentence; empty if it can.
std::string callExport(void* entry, VInitialization& host) {
    // The exception is destroyed here: its code may be the plug-in's, which is unloaded afterwards.
    try {
        if (reinterpret_cast<Export>(entry)(&host))
            return {};
        return std::string("says that it is not compatible with this host (") + VInitialization::apiKey() + ").";
    } catch (...) {
        return InputFaults::describeCurrent();
    }
}

} // namespace

struct PluginLoader::Plugin {
    // As it was given to load().
    std::string name;
    // Stored, as the file and the links to it may change afterwards.
    std::string path;
    std::unique_ptr<PluginLibrary> library;
};

PluginLoader::PluginLoader(VInitialization& host) : host_(host) {}

PluginLoader::PluginLoader() : PluginLoader(plainHost()) {}

PluginLoader::~PluginLoader() {
    // The latest first. A file that is in use stays loaded, as unloading its code would crash.
    while (!plugins_.empty()) {
        auto const closed = close(std::prev(plugins_.end()));
        if (!closed.remains.empty())
            VActionNotifier::Warning(closed.remains);
        if (closed.message.empty())
            continue;
        if (closed.isHeldByOthers)
            plugins_.back()->library->leave();
        plugins_.pop_back();
    }
}

std::string PluginLoader::exportName(std::string const& file) {
    return PluginFile::exportPrefix() + std::filesystem::path(file).stem().string();
}

PluginLoader::Plugins::const_iterator PluginLoader::find(std::string const& file) const {
    auto const found =
        std::find_if(plugins_.begin(), plugins_.end(),
                     [path = PluginFile::canonicalPath(file)](auto const& plugin) { return plugin->path == path; });
    if (found != plugins_.end())
        return found;
    // A relative name or a link that was loaded may lead elsewhere by now.
    return std::find_if(plugins_.begin(), plugins_.end(), [&](auto const& plugin) { return plugin->name == file; });
}

PluginLoader::Outcome PluginLoader::load(std::string const& file) {
    auto const path = PluginFile::canonicalPath(file);
    auto const isLoaded = [&](auto const& plugin) { return plugin->path == path; };
    if (std::any_of(plugins_.begin(), plugins_.end(), isLoaded))
        return {false, "The plug-in " + file + " is loaded already."};
    PluginFile const looked(file);
    if (!looked.problem().empty())
        return {false, looked.problem()};
    Tessera::LivingObjects::Loading const loading;
    std::string problem;
    auto library = PluginLibrary::open(path, problem);
    if (!library)
        return {false, "Cannot open the plug-in " + file + ": " + problem};
    return start(std::make_unique<Plugin>(Plugin{file, path, std::move(library)}));
}

PluginLoader::Outcome PluginLoader::start(std::unique_ptr<Plugin> plugin) {
    auto const& file = plugin->name;
    auto const& library = *plugin->library;
    // Two names of one file that are no links lead to one library.
    for (auto const& other : plugins_) {
        if (other->library->range().begin == library.range().begin) {
            plugin->library->leave();
            return {false, "The plug-in " + file + " is loaded already, as " + other->name + "."};
        }
    }
    Tessera::LivingObjects::watch(library.range());
    auto const name = exportName(plugin->path);
    void* const entry = library.symbol(name);
    auto const refusal = entry ? callExport(entry, host_) : "has lost its export " + name + ".";
    if (!refusal.empty())
        return discard(std::move(plugin), "The plug-in " + file + " " + refusal);
    plugins_.push_back(std::move(plugin));
    return {true, {}};
}

PluginLoader::Outcome PluginLoader::discard(std::unique_ptr<Plugin> plugin, std::string message) {
    plugins_.push_back(std::move(plugin));
    auto const place = std::prev(plugins_.end());
    auto const closed = close(place);
    if (!closed.message.empty())
        message += " " + closed.message;
    if (!closed.remains.empty())
        message += " " + closed.remains + ".";
    return {false, message};
}

PluginLoader::Outcome PluginLoader::unload(std::string const& file) {
    auto const found = find(file);
    return found == plugins_.end() ? Outcome{false, "The plug-in " + file + " is not loaded."} : unload(found);
}

PluginLoader::Outcome PluginLoader::unload(Plugins::const_iterator place) {
    auto const closed = close(place);
    if (!closed.remains.empty())
        VActionNotifier::Warning(closed.remains);
    return {closed.message.empty(), closed.message};
}

PluginLoader::Outcome PluginLoader::checkIdle() const {
    for (auto const& plugin : plugins_) {
        if (auto idle = checkIdle(*plugin); !idle.ok)
            return idle;
    }
    return {true, {}};
}

PluginLoader::Outcome PluginLoader::checkIdle(Plugin const& plugin) {
    if (!plugin.library->isOnStack())
        return {true, {}};
    return {false, "The plug-in " + plugin.name + " cannot be unloaded while its own code is running."};
}

std::string PluginLoader::reasonToStay(Plugin const& plugin) {
    if (auto idle = checkIdle(plugin); !idle.ok)
        return idle.message;
    auto const start = "The plug-in " + plugin.name + " cannot be unloaded while ";
    auto const& library = *plugin.library;
    auto uses = PluginUses::of(library, PluginUses::Records::Ignored);
    if (uses.empty()) {
        // The code that undoes these records is unloaded with the plug-in.
        UndoHistory::forgetEverywhere([&](VUndoAction const& action) { return library.defines(typeid(action)); });
        uses = PluginUses::of(library, PluginUses::Records::Counted);
    }
    if (uses.empty())
        return {};
    int const editors = PluginUses::notifiers(library);
    if (uses.size() == 1 && editors > 0)
        return start + std::to_string(editors) +
               (editors == 1 ? " of its editors is in use." : " of its editors are in use.");
    std::string list;
    for (auto const& use : uses)
        list += (list.empty() ? "" : ", ") + use;
    return start + "these are in use: " + list + ".";
}

PluginLoader::Closing PluginLoader::close(Plugins::const_iterator place) {
    auto& plugin = **place;
    if (auto reason = reasonToStay(plugin); !reason.empty())
        return {std::move(reason), {}};
    PluginRemains remains(*plugin.library);
    std::string problem;
    auto const closed = plugin.library->close(problem);
    if (closed == PluginLibrary::Closed::Failed)
        return {"Cannot close the plug-in " + plugin.name + ": " + problem, {}};
    if (closed == PluginLibrary::Closed::Remains)
        return {"The plug-in " + plugin.name + " was closed and is still in memory, because something else holds it.",
                {},
                true};
    auto const left = remains.cleanUp();
    auto const name = plugin.name;
    plugins_.erase(place);
    return {{}, left.empty() ? left : "The plug-in " + name + " left behind what was removed now: " + left};
}

std::vector<std::string> PluginLoader::files() const {
    std::vector<std::string> files;
    for (auto const& plugin : plugins_)
        files.push_back(plugin->name);
    return files;
}

int PluginLoader::livingEditors(std::string const& file) const {
    auto const found = find(file);
    return found == plugins_.end() ? 0 : PluginUses::notifiers(*(*found)->library);
}

} // namespace Kolt
