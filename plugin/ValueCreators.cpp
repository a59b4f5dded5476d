#include <bramble/Action.hpp>
#include <lattice/ValueCreator.hpp>
#include <plugin/QInputWidgetCreator.hpp>

namespace Kolt {

namespace {

/// Lets the host make values of the types that the value templates were compiled for here.
struct ValueCreators {
    ValueCreators() {
        registerValueCreatorOnce<double>();
        registerValueCreatorOnce<int>();
        registerValueCreatorOnce<Tessera::StrongPtr<VAction>>();
    }
};

TALO_STATIC_CREATOR ValueCreators const valueCreators;

} // namespace

} // namespace Kolt
