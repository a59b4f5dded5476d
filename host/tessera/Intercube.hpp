#pragma once

#include <tessera/Export.hpp>
#include <tessera/Interface.hpp>
#include <vector>

namespace Tessera {

/// An object that carries typed interfaces and keeps them alive. User-interface thread, or the loading thread while a
/// library loads. Prints nothing.
class TALO_EXPORT Intercube {
public:
    virtual ~Intercube();

    /// Attaches an interface for the rest of the object's life. Null is ignored. Of two interfaces of one type the one
    /// attached later is found.
    void addInterface(StrongPtr<InterfaceBase> const& interface) const;
    /// The attached interface of a type, found by the type's name; null if there is none.
    StrongPtr<InterfaceBase> findInterface(std::type_info const& type) const;
    /// The attached interface of type T, as a T; null if there is none.
    template <typename T>
    StrongPtr<T, InterfaceBase> getInterface() const {
        return DynPtr<T, InterfaceBase>(findInterface(typeid(T)));
    }
    /// Visits the interfaces in the order in which they were attached until one answers false. Returns whether all
    /// answered true. An interface that is attached during the walk is not visited.
    bool applyInterfaces(StrongPtr<InterfaceIterationParameter> const& parameter) const;
    /// The same, for interfaces that change the object.
    bool applyInterfaces(StrongPtr<InterfaceIterationParameter> const& parameter);

private:
    mutable std::vector<StrongPtr<InterfaceBase>> interfaces_;
};

} // namespace Tessera
