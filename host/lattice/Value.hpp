#pragma once

#include <lattice/ValueBase.hpp>
#include <lattice/ValueTrait.hpp>
#include <mutex>
#include <optional>
#include <typeinfo>

namespace Kolt {

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
