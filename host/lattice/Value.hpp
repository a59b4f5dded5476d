#pragma once

#include <lattice/ValueTrait.hpp>
#include <mutex>
#include <tessera/Ageable.hpp>
#include <tessera/Interface.hpp>
#include <tessera/Reference.hpp>

namespace Kolt {

class VManagedObject;
class VManagedObjectBase;
class VValueBase;

using ValuePtr = Tessera::StrongPtr<VValueBase>;

/// A value of some type, held by a parameter, a value pool or a property map, and shared by strong references. Its
/// age stamp tells when it was last marked as changed; a plain store does not renew it.
class VValueBase : public Tessera::ReferenceBase<VValueBase>, public Tessera::Ageable {
public:
    VValueBase();
    ~VValueBase() override;
    VValueBase(VValueBase const&) = delete;
    VValueBase& operator=(VValueBase const&) = delete;

    /// The type of the value.
    virtual std::type_info const& valueType() const = 0;
    /// The value as text, as VValueTrait writes it.
    virtual std::string Text() const = 0;
    /// Stores what the text says; false, and nothing stored, when it is no value of the type.
    virtual bool setValueFromText(std::string const& text) = 0;
    /// A new value object with a copy of the value. What the value refers to is cloned, so that in-place changes of
    /// the one do not reach the other.
    virtual ValuePtr clone() const = 0;
    /// Whether the other is of the same type and stands for the same value.
    virtual bool equals(VValueBase const& other) const = 0;
    /// Stores a copy of the other's value; what that refers to is cloned. False, and nothing stored, when the other is
    /// not of the same type or the store is refused.
    virtual bool assign(VValueBase const& other) = 0;
    /// Whether people edit values of this kind; VTypedValueBase answers with IsEditedType<T>.
    virtual bool isEdited() const;
    /// An interface that the value carries; null unless a derived class has one.
    virtual Tessera::StrongPtr<Tessera::InterfaceBase> getInterface() const;

    /// The value that this one is a part of; empty for a value of its own.
    void setContainerValue(Tessera::WeakPtr<VValueBase> const& container);
    Tessera::WeakPtr<VValueBase> const& containerValue() const { return container_; }
    /// The object that produced the value; empty when nobody said.
    void setSource(Tessera::WeakPtr<VManagedObject, VManagedObjectBase> const& source);
    Tessera::WeakPtr<VManagedObject, VManagedObjectBase> const& source() const { return source_; }

private:
    Tessera::WeakPtr<VValueBase> container_;
    Tessera::WeakPtr<VManagedObject, VManagedObjectBase> source_;
};

/// A value that can be read and stored as a T, wherever it is kept. Both may be called on any thread.
template <typename T>
class VTypedValueBase : public VValueBase {
public:
    /// Copies the value; false, and `out` left alone, when there is none to be had.
    virtual bool get(T& out) const = 0;
    /// Stores a value; says whether it was accepted.
    virtual bool set(T const& value) = 0;
    /// Whether it stands for the same value; false where there is none to be had.
    virtual bool holds(T const& value) const {
        T own{};
        return get(own) && VValueTrait<T>::Equal(own, value);
    }

    std::type_info const& valueType() const override { return typeid(T); }
    std::string Text() const override {
        T value{};
        return get(value) ? VValueTrait<T>::Text(value) : std::string();
    }
    bool setValueFromText(std::string const& text) override {
        T value{};
        // What a text leaves open (the names of a selection, say) stays as it is.
        return get(value) && VValueTrait<T>::setValueFromText(value, text) && set(value);
    }
    bool equals(VValueBase const& other) const override {
        auto const* const typed = dynamic_cast<VTypedValueBase const*>(&other);
        T value{};
        return typed && typed->get(value) && holds(value);
    }
    bool assign(VValueBase const& other) override {
        auto const* const typed = dynamic_cast<VTypedValueBase const*>(&other);
        T value{};
        return typed && typed->get(value) && set(VValueTrait<T>::Clone(value));
    }
    bool isEdited() const override { return IsEditedType<T>; }
};

/// A value of type T kept in the object itself. Its store always accepts, also a value equal to the old one.
template <typename T>
class VValue : public VTypedValueBase<T> {
public:
    explicit VValue(T const& value = T()) : value_(value) {}

    bool get(T& out) const override {
        std::lock_guard const lock(mutex_);
        out = value_;
        return true;
    }
    bool set(T const& value) override {
        std::lock_guard const lock(mutex_);
        value_ = value;
        return true;
    }
    // Compared where it lies: a long text is not copied for it.
    bool holds(T const& value) const override {
        std::lock_guard const lock(mutex_);
        return VValueTrait<T>::Equal(value_, value);
    }
    ValuePtr clone() const override {
        T value{};
        get(value);
        return ValuePtr(new VValue(VValueTrait<T>::Clone(value)));
    }

private:
    // A worker may store a status while the user interface reads it.
    mutable std::mutex mutex_;
    T value_;
};

/// The object as one of values of type T, found by a dynamic type test; null when it is null or of another type.
template <typename T>
VTypedValueBase<T>* typedValue(VValueBase* value) {
    // Almost every value is one of these, and to compare types is much quicker than to search them.
    if (value && typeid(*value) == typeid(VValue<T>))
        return static_cast<VValue<T>*>(value);
    return dynamic_cast<VTypedValueBase<T>*>(value);
}

/// The T in a value object, found by a dynamic type test; `fallback` when the object is null, of another type or
/// cannot be read.
template <typename T>
T valueOr(ValuePtr const& value, T const& fallback) {
    T out = fallback;
    auto const* const typed = dynamic_cast<VTypedValueBase<T> const*>(value.get());
    // A value that cannot be read leaves the fallback alone.
    if (typed)
        typed->get(out);
    return out;
}

/// A new value object.
template <typename T>
ValuePtr makeValue(T const& value) {
    return ValuePtr(new VValue<T>(value));
}

// Compiled into this library alone: a value outlives the plug-in that made it.
extern template class VTypedValueBase<bool>;
extern template class VTypedValueBase<int>;
extern template class VTypedValueBase<double>;
extern template class VTypedValueBase<std::string>;
extern template class VTypedValueBase<std::array<std::string, 1>>;
extern template class VValue<bool>;
extern template class VValue<int>;
extern template class VValue<double>;
extern template class VValue<std::string>;
extern template class VValue<std::array<std::string, 1>>;

} // namespace Kolt
