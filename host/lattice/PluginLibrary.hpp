#pragma once

#include <memory>
#include <string>
#include <tessera/AddressRange.hpp>
#include <typeinfo>

namespace Kolt {

/// A library that the system's loader has loaded from a file. Its destructor leaves it loaded; close() unloads it.
/// Loading thread.
class PluginLibrary {
public:
    /// Loads the file at an absolute path, and resolves all symbols at once. Null, and the system's reason in
    /// `problem`, if that fails.
    static std::unique_ptr<PluginLibrary> open(std::string const& path, std::string& problem);

    /// The part of the memory that the library occupies.
    Tessera::AddressRange const& range() const { return range_; }
    /// Whether the library defines a type: the type information of a type lies in the library that defines it.
    bool defines(std::type_info const& type) const { return range_.contains(&type); }
    /// The address of an exported symbol; null if there is none.
    void* symbol(std::string const& name) const;
    /// Whether the calling thread is executing code of the library, in whatever depth of calls. What other threads
    /// execute cannot be seen.
    bool isOnStack() const;

    /// What became of a library that was closed.
    enum class Closed {
        Unloaded, ///< its code is gone; the object must not be used any more
        Remains,  ///< it is still in memory, because something else holds it, and can be closed again later
        Failed    ///< the system refused
    };
    /// Gives up a library that another object has opened, too, and that stays loaded for it. The object must not be
    /// used any more.
    void leave();
    /// Closes the library. In `problem` comes the system's reason if it fails.
    Closed close(std::string& problem);

private:
    PluginLibrary(std::string path, void* handle);

    std::string const path_;
    void* handle_;
    Tessera::AddressRange range_;
};

} // namespace Kolt
