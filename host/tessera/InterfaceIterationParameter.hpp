#pragma once

#include <tessera/Reference.hpp>

namespace Tessera {

class InterfaceBase;
class Intercube;

/// A visitor of the interfaces of an object. One visitor is handed from interface to interface, so that it can collect
/// what it finds. User-interface thread, or the loading thread while a library loads. Prints nothing.
class TALO_EXPORT InterfaceIterationParameter : public ReferenceBase<InterfaceIterationParameter> {
public:
    ~InterfaceIterationParameter() override;

    /// Called once for each interface, in the order in which the interfaces were attached to `carrier`. Returns false
    /// to end the walk.
    virtual bool visit(Intercube const& carrier, InterfaceBase const& interface) = 0;
};

} // namespace Tessera
