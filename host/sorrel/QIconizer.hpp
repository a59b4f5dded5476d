#pragma once

#include <lattice/Object.hpp>
#include <lattice/ValuePoolProvider.hpp>
#include <QWidget>
#include <tessera/Interface.hpp>

namespace Kolt {

/// A compact display that stands for an object, made by a QIconizer. The parent widget that it was made on owns it, or
/// whoever made it without one. User-interface thread.
class VIcon {
public:
    /// The object is referred to weakly; the provider says in which pool the icon shows values.
    VIcon(Tessera::WeakPtr<VObject, VManagedObjectBase> const& object,
          Tessera::StrongPtr<ValuePoolProvider> const& provider);
    virtual ~VIcon();
    VIcon(VIcon const&) = delete;
    VIcon& operator=(VIcon const&) = delete;

    Tessera::WeakPtr<VObject, VManagedObjectBase> const& object() const { return object_; }
    Tessera::StrongPtr<ValuePoolProvider> const& provider() const { return provider_; }
    /// The icon as a widget; never null.
    virtual QWidget* widget() = 0;

private:
    Tessera::WeakPtr<VObject, VManagedObjectBase> object_;
    Tessera::StrongPtr<ValuePoolProvider> provider_;
};

/// The interface that an input carries when its parameter can be shown as an icon. User-interface thread.
class QIconizer : public Tessera::Interface<QIconizer> {
public:
    QIconizer();
    ~QIconizer() override;

    /// Makes an icon on `parent` for an object, showing values in the provider's pool.
    virtual VIcon* createIcon(QWidget* parent, Tessera::WeakPtr<VObject, VManagedObjectBase> const& object,
                              Tessera::StrongPtr<ValuePoolProvider> const& provider) = 0;
};

} // namespace Kolt
