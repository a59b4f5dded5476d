#include <sorrel/VIcon.hpp>

namespace Kolt {

VIcon::VIcon(Tessera::WeakPtr<VObject, VManagedObjectBase> const& object,
             Tessera::StrongPtr<ValuePoolProvider> const& provider)
    : object_(object), provider_(provider) {}

VIcon::~VIcon() = default;

} // namespace Kolt
