#pragma once

#include <string>
#include <tessera/Reference.hpp>
#include <vector>

/// Objects that carry typed interfaces. All of it belongs to the user-interface thread, or to the thread that loads a
/// library while it does.
namespace Tessera {

class InterfaceBase;
class Intercube;

/// What a walk over the interfaces of an object hands from one interface to the next.
class InterfaceIterationParameter : public ReferenceBase<InterfaceIterationParameter> {
public:
    ~InterfaceIterationParameter() override;
    /// Called once for each interface. False ends the walk.
    virtual bool visit(Intercube const& carrier, InterfaceBase const& interface) = 0;
};

/// Something that can be attached to an Intercube and found there by its type.
class InterfaceBase : public ReferenceBase<InterfaceBase> {
public:
    ~InterfaceBase() override;
    /// The type under which the interface is found.
    virtual std::type_info const& interfaceType() const = 0;
    /// Takes part in a walk over the interfaces of `carrier`: shows itself to the parameter and passes its answer on.
    /// A null parameter goes on without being shown.
    virtual bool apply_const(Intercube const& carrier, StrongPtr<InterfaceIterationParameter> const& parameter) const;
    virtual bool apply(Intercube& carrier, StrongPtr<InterfaceIterationParameter> const& parameter);
};

/// An interface that is found as a T.
template <typename T>
class Interface : public InterfaceBase {
public:
    std::type_info const& interfaceType() const override { return typeid(T); }
};

/// An object that carries interfaces and keeps them alive.
class Intercube {
public:
    virtual ~Intercube();

    /// Attaches an interface; it stays for the object's life. Null is ignored. Of two interfaces of one type the one
    /// attached later is found.
    void addInterface(StrongPtr<InterfaceBase> const& interface) const;
    /// The attached interface of a type, by the type's name; null when there is none.
    StrongPtr<InterfaceBase> findInterface(std::type_info const& type) const;
    /// The same, as a T.
    template <typename T>
    StrongPtr<T, InterfaceBase> getInterface() const {
        return DynPtr<T, InterfaceBase>(findInterface(typeid(T)));
    }
    /// Walks the interfaces in the order in which they were attached until one says false; returns whether all agreed.
    bool applyInterfaces(StrongPtr<InterfaceIterationParameter> const& parameter) const;
    bool applyInterfaces(StrongPtr<InterfaceIterationParameter> const& parameter);

private:
    mutable std::vector<StrongPtr<InterfaceBase>> interfaces_;
};

/// A name that can be changed. UTF-8.
class MutableName {
public:
    explicit MutableName(std::string name) : name_(std::move(name)) {}
    std::string const& Name() const { return name_; }
    void setName(std::string name) { name_ = std::move(name); }

protected:
    ~MutableName() = default;

private:
    std::string name_;
};

} // namespace Tessera
