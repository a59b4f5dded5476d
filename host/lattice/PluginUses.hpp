#pragma once

#include <lattice/PluginLibrary.hpp>
#include <string>
#include <tessera/Export.hpp>
#include <vector>

namespace Kolt {

/// What keeps a plug-in library from being unloaded: living objects of its types. These are notifiers (editors, almost
/// always), the kinds that other libraries list (Listing), and all adopted objects to which others than the plug-in
/// itself refer (Tessera::LivingObjects): values, undo records, interfaces, creators, actions. User-interface thread.
class TALO_EXPORT PluginUses {
public:
    /// An object whose type a plug-in may define.
    struct Use {
        std::type_info const* type; ///< its dynamic type
        char const* kind;           ///< what it is to people: "widget"; its plural ends with an s
    };
    /// Lists all objects of some kinds, those of all plug-ins and of the host.
    using Lister = std::vector<Use> (*)();
    /// Has a lister asked as long as it exists: a static object of a library with kinds of objects of its own.
    class TALO_EXPORT Listing {
    public:
        /// From now on the lister is asked, too.
        explicit Listing(Lister lister);
        ~Listing();
        Listing(Listing const&) = delete;
        Listing& operator=(Listing const&) = delete;

    private:
        Lister const lister_;
    };

    /// Whether undo records count.
    enum class Records { Ignored, Counted };

    /// How many notifiers of the library's types exist, without its static ones, which end with it.
    static int notifiers(PluginLibrary const& library);
    /// What is in use, for people: "2 editors", "1 value of type Sample::Vector (box.size)"; empty if nothing is.
    static std::vector<std::string> of(PluginLibrary const& library, Records records);
};

} // namespace Kolt
