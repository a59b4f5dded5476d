#pragma once

#include <sorrel/VIcon.hpp>
#include <tessera/Export.hpp>
#include <tessera/Interface.hpp>

namespace Kolt {

/// The interface that an input carries (Intercube::getInterface) if its parameter can be shown as an icon.
/// User-interface thread.
class TALO_EXPORT QIconizer : public Tessera::Interface<QIconizer> {
public:
    QIconizer();
    ~QIconizer() override;

    /// Makes an icon for an object that shows values in the provider's pool. `parent` owns the icon; without a parent
    /// the caller does.
    virtual VIcon* createIcon(QWidget* parent, Tessera::WeakPtr<VObject, VManagedObjectBase> const& object,
                              Tessera::StrongPtr<ValuePoolProvider> const& provider) = 0;
};

} // namespace Kolt
