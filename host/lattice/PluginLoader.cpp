#include <lattice/PluginLoader.hpp>

#include <algorithm>
#include <dlfcn.h>
#include <filesystem>
#include <lattice/UndoHistory.hpp>
#include <lattice/ValueNotifier.hpp>
#include <tessera/FileContent.hpp>
#include <tessera/NoDestructor.hpp>

namespace Kolt {

namespace {

using Export = bool (*)(VInitialization*);

// In bytes.
constexpr std::uintmax_t largestFile = 256 << 20;

std::string loaderReason() {
    char const* const reason = dlerror();
    return reason ? reason : "the system gives no reason";
}

std::filesystem::path pathOf(std::string const& file) {
    // The system would search its library folders for a bare name and take an empty one for the program itself. Two
    // links to one file are the same plug-in.
    std::error_code ignored;
    auto const absolute = std::filesystem::absolute(file.empty() ? "." : file, ignored);
    auto const real = std::filesystem::weakly_canonical(absolute, ignored);
    return real.empty() ? absolute.lexically_normal() : real;
}

// Never destroyed: plug-ins may keep a pointer to it.
VInitialization& plainHost() {
    static Tessera::NoDestructor<VInitialization> host;
    return *host;
}

} // namespace

class PluginLoader::Plugin {
public:
    Plugin(std::string fileName, void* library, void const* base)
        : file(std::move(fileName)), handle(library), base_(base) {}

    // The type information of a type lies in the library that defines it.
    bool defines(std::type_info const& type) const {
        Dl_info info{};
        return dladdr(&type, &info) != 0 && info.dli_fbase == base_;
    }
    int livingEditors() const {
        auto const notifiers = ValueNotifier::living();
        return static_cast<int>(std::count_if(notifiers.begin(), notifiers.end(), [&](ValueNotifier const* notifier) {
            return defines(typeid(*notifier));
        }));
    }

    std::string const file;
    void* const handle;

private:
    void const* const base_;
};

PluginLoader::PluginLoader(VInitialization& host) : host_(host) {}

PluginLoader::PluginLoader() : PluginLoader(plainHost()) {}

PluginLoader::~PluginLoader() {
    // The latest first. A file whose editors exist stays loaded, as unloading their code would crash.
    while (!plugins_.empty()) {
        if (!unload(plugins_.back()->file).ok)
            plugins_.pop_back();
    }
}

std::string PluginLoader::exportName(std::string const& file) {
    return "TALO_API_2023_MAR_29__" + std::filesystem::path(file).stem().string();
}

PluginLoader::Plugins::const_iterator PluginLoader::find(std::string const& file) const {
    return std::find_if(plugins_.begin(), plugins_.end(),
                        [path = pathOf(file)](auto const& plugin) { return pathOf(plugin->file) == path; });
}

PluginLoader::Outcome PluginLoader::load(std::string const& file) {
    if (find(file) != plugins_.end())
        return {false, "The plug-in " + file + " is loaded already."};
    // The system would wait for a pipe. Of a file that is missing it says more itself.
    auto const looked = Tessera::FileContent::check(pathOf(file).string(), largestFile);
    if (!looked && looked.problem() != Tessera::FileContent::Problem::NotOpened)
        return {false, "Cannot open the plug-in " + file + ": " + looked.reason()};
    void* const handle = dlopen(pathOf(file).c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle)
        return {false, "Cannot open the plug-in " + file + ": " + loaderReason()};
    auto const name = exportName(file);
    void* const entry = dlsym(handle, name.c_str());
    if (!entry) {
        auto const reason = loaderReason();
        dlclose(handle);
        return {false, "Cannot find the export " + name + " in the plug-in " + file + ": " + reason};
    }
    if (!reinterpret_cast<Export>(entry)(&host_)) {
        dlclose(handle);
        return {false, "The plug-in " + file + " says that it is not compatible with this host (" +
                           VInitialization::apiKey() + ")."};
    }
    Dl_info info{};
    dladdr(entry, &info);
    plugins_.push_back(std::make_unique<Plugin>(file, handle, info.dli_fbase));
    return {true, {}};
}

PluginLoader::Outcome PluginLoader::unload(std::string const& file) {
    auto const found = find(file);
    if (found == plugins_.end())
        return {false, "The plug-in " + file + " is not loaded."};
    auto const& plugin = **found;
    if (int const living = plugin.livingEditors())
        return {false, "The plug-in " + file + " cannot be unloaded while " + std::to_string(living) +
                           (living == 1 ? " of its editors is in use." : " of its editors are in use.")};
    // The code that undoes these records is unloaded with the plug-in.
    UndoHistory::forgetEverywhere([&](VUndoAction const& action) { return plugin.defines(typeid(action)); });
    if (dlclose(plugin.handle) != 0)
        return {false, "Cannot close the plug-in " + file + ": " + loaderReason()};
    plugins_.erase(found);
    return {true, {}};
}

std::vector<std::string> PluginLoader::files() const {
    std::vector<std::string> files;
    for (auto const& plugin : plugins_)
        files.push_back(plugin->file);
    return files;
}

int PluginLoader::livingEditors(std::string const& file) const {
    auto const found = find(file);
    return found == plugins_.end() ? 0 : (*found)->livingEditors();
}

} // namespace Kolt
