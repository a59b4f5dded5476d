#pragma once

#include <sorrel/VIcon.hpp>
#include <tessera/Interface.hpp>

namespace Kolt {

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
