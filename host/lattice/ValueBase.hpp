#pragma once

#include <memory>
#include <tessera/Ageable.hpp>
#include <tessera/Interface.hpp>
#include <tessera/Reference.hpp>

namespace Kolt {

class VManagedObject;
class VManagedObjectBase;
class VValueBase;

using ValuePtr = Tessera::StrongPtr<VValueBase>;

/// A value of some type, held by a parameter, a value pool or a property map and shared by strong references. Its age
/// stamp says when it was last marked as changed; a plain store does not renew it.
///
/// The value may be read and stored on any thread, if the derived class says so; the container and the source are set
/// and read by one thread at a time. Nothing is printed, and nobody is notified of a store.
class TALO_EXPORT VValueBase : public Tessera::ReferenceBase<VValueBase>, public Tessera::Ageable {
public:
    VValueBase();
    ~VValueBase() override;
    VValueBase(VValueBase const&) = delete;
    VValueBase& operator=(VValueBase const&) = delete;

    /// The type of the value.
    virtual std::type_info const& valueType() const = 0;
    /// The value as text, as VValueTrait writes it; empty for a value that cannot be read.
    virtual std::string Text() const = 0;
    /// Stores what the text says. Returns false, and stores nothing, if the text is no value of the type.
    virtual bool setValueFromText(std::string const& text) = 0;
    /// A new value object with a copy of the value. What the value refers to is cloned too, so that changing the one
    /// in place does not change the other.
    [[nodiscard]] virtual ValuePtr clone() const = 0;
    /// Whether the other is of the same type and has an equal value, as VValueTrait compares.
    virtual bool equals(VValueBase const& other) const = 0;
    /// Stores a copy of the other's value; what that refers to is cloned. Returns false, and stores nothing, if the
    /// other is of another type or the store is refused.
    virtual bool assign(VValueBase const& other) = 0;
    /// Whether people edit values of this kind; VTypedValueBase answers with IsEditedType<T>.
    virtual bool isEdited() const;
    /// About how many bytes of memory the value takes by itself; what it shares with its clones is left out. A history
    /// counts them. Any thread where the value may be read on any.
    virtual std::size_t byteCount() const;
    /// An interface that the value carries; null unless a derived class has one.
    virtual Tessera::StrongPtr<Tessera::InterfaceBase> getInterface() const;

    /// Sets the value that this one is a part of. It is held weakly.
    void setContainerValue(Tessera::WeakPtr<VValueBase> const& container);
    /// The value that this one is a part of; empty for a value of its own.
    Tessera::WeakPtr<VValueBase> containerValue() const;
    /// Sets the object that produced the value. It is held weakly.
    void setSource(Tessera::WeakPtr<VManagedObject, VManagedObjectBase> const& source);
    /// The object that produced the value; empty if none was set.
    Tessera::WeakPtr<VManagedObject, VManagedObjectBase> source() const;

private:
    struct Origin;
    Origin& origin();

    // Null until the container or the source is set, which is rare.
    std::unique_ptr<Origin> origin_;
};

} // namespace Kolt
