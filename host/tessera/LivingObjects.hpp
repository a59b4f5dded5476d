#pragma once

#include <tessera/AddressRange.hpp>
#include <tessera/Export.hpp>
#include <tessera/Reference.hpp>
#include <typeinfo>
#include <vector>

namespace Tessera {

/// The adopted objects whose type is defined by a watched library: those that must be gone before the library is
/// unloaded, because their code is in it. Objects of all other types cost a comparison of addresses when they are
/// adopted, and nothing else. Any thread. Prints nothing.
class TALO_EXPORT LivingObjects {
public:
    /// While one exists, every adopted object is noted, whatever its type: a library constructs its static objects
    /// before anybody can know where it lies. One is made before a library is loaded and kept until watch() was called.
    class TALO_EXPORT Loading {
    public:
        Loading();
        ~Loading();
        Loading(Loading const&) = delete;
        Loading& operator=(Loading const&) = delete;
    };

    /// Watches a library that was just loaded. The references to its objects that exist now are taken to be the
    /// library's own: it gives them up when it is unloaded. Nothing happens for a library that is watched already.
    static void watch(AddressRange const& library);
    /// The living objects whose type the library defines and to which others than the library itself refer.
    static std::vector<StrongPtr<ReferenceCounted>> heldByOthers(AddressRange const& library);
    /// Ends the watching of a library that was unloaded. All references to objects of its types that still exist are
    /// emptied, and the objects are never deleted, because their code is gone. Returns how many there were.
    static int abandon(AddressRange const& library);

private:
    friend class ReferenceControl;
    // Cheap, and true for few types.
    static bool concerns(std::type_info const& type) noexcept;
    static void add(ReferenceControl& control, ReferenceCounted* object, std::type_info const& type);
    static void remove(ReferenceControl& control) noexcept;
};

} // namespace Tessera
