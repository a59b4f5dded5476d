#pragma once

#include <lattice/Object.hpp>
#include <lattice/ValuePoolProvider.hpp>
#include <QWidget>
#include <tessera/Export.hpp>
#include <vector>

namespace Kolt {

/// A compact display of an object, made by a QIconizer. Owned by the parent widget that it was made with; without a
/// parent by the caller. User-interface thread.
class TALO_EXPORT VIcon {
public:
    /// Refers to the object weakly. The provider holds the pool in which the icon shows values; it may be null.
    VIcon(Tessera::WeakPtr<VObject, VManagedObjectBase> const& object,
          Tessera::StrongPtr<ValuePoolProvider> const& provider);
    virtual ~VIcon();
    VIcon(VIcon const&) = delete;
    VIcon& operator=(VIcon const&) = delete;

    /// The displayed object, which may be destroyed.
    Tessera::WeakPtr<VObject, VManagedObjectBase> const& object() const { return object_; }
    /// Says which pool the icon shows; may be null.
    Tessera::StrongPtr<ValuePoolProvider> const& provider() const { return provider_; }
    /// The icon as a widget; never null.
    virtual QWidget* widget() = 0;

    /// All existing icons, in no particular order. A host that unloads a library needs them to know whose code is still
    /// in use.
    static std::vector<VIcon*> living();

private:
    Tessera::WeakPtr<VObject, VManagedObjectBase> object_;
    Tessera::StrongPtr<ValuePoolProvider> provider_;
};

} // namespace Kolt
