#pragma once

#include <tessera/InterfaceIterationParameter.hpp>
#include <tessera/Reference.hpp>

namespace Tessera {

/// Something that can be attached to an Intercube and found there by its type. The carrier keeps it alive.
/// User-interface thread, or the loading thread while a library loads. Prints nothing.
class TALO_EXPORT InterfaceBase : public ReferenceBase<InterfaceBase> {
public:
    ~InterfaceBase() override;

    /// The type under which the interface is found. Types are compared by name, so the type may be defined in another
    /// library than the one that asks.
    virtual std::type_info const& interfaceType() const = 0;
    /// Takes part in a walk over the interfaces of `carrier`: passes itself to the visitor and returns its answer. A
    /// null visitor sees nothing, and the walk continues. The default does that; a derived class may add to it.
    virtual bool apply_const(Intercube const& carrier, StrongPtr<InterfaceIterationParameter> const& parameter) const;
    /// The same for a carrier that may be changed.
    virtual bool apply(Intercube& carrier, StrongPtr<InterfaceIterationParameter> const& parameter);
};

/// The base of an interface that is found as a T. T is the derived class itself: `class Named : public
/// Interface<Named>`.
template <typename T>
class Interface : public InterfaceBase {
public:
    /// The type `T`.
    std::type_info const& interfaceType() const override { return typeid(T); }
};

} // namespace Tessera
