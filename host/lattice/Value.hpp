#pragma once

#include <atomic>
#include <lattice/ValueBase.hpp>
#include <lattice/ValueTrait.hpp>
#include <memory>
#include <optional>
#include <type_traits>
#include <typeinfo>

namespace Kolt {

template <typename T>
class VTypedValueBase;
template <typename T>
VTypedValueBase<T> const* typedValue(VValueBase const* value);

/// A value that can be read and stored as a T, wherever it is kept. `get`, `set` and `holds` may be called on any
/// thread.
template <typename T>
class VTypedValueBase : public VValueBase {
    static_assert(IsStorable<T>, "Values are the numbers bool, int and double, std::string, or of class types.");

public:
    /// Copies the value to `out`. Returns false, and leaves `out` alone, if the value cannot be read.
    [[nodiscard]] virtual bool get(T& out) const = 0;
    /// Stores a value. Returns whether it was accepted. Nobody is notified.
    virtual bool set(T const& value) = 0;
    /// The value without a copy, if the object keeps it as a whole, else a copy; null if it cannot be read. What it
    /// refers to may be changed in place.
    [[nodiscard]] virtual std::shared_ptr<T const> shared() const {
        auto copy = std::make_shared<T>();
        return get(*copy) ? copy : nullptr;
    }
    /// Whether the stored value equals this one, as VValueTrait compares; false if the value cannot be read.
    virtual bool holds(T const& value) const {
        T own{};
        return get(own) && VValueTrait<T>::Equal(own, value);
    }

    std::type_info const& valueType() const override { return typeid(T); }
    std::string Text() const override {
        auto const value = content();
        return value ? VValueTrait<T>::Text(*value) : std::string();
    }
    bool setValueFromText(std::string const& text) override {
        T value{};
        // What a text leaves open (the names of a selection, say) stays as it is.
        return get(value) && VValueTrait<T>::setValueFromText(value, text) && set(value);
    }
    bool equals(VValueBase const& other) const override {
        auto const* const typed = typedValue<T>(&other);
        if (!typed)
            return false;
        auto const value = typed->content();
        return value && holds(*value);
    }
    bool assign(VValueBase const& other) override {
        auto const* const typed = typedValue<T>(&other);
        T value{};
        return typed && typed->get(value) && set(VValueTrait<T>::Clone(value));
    }
    bool isEdited() const override { return IsEditedType<T>; }

private:
    // The value as cheaply as it can be had, to be read through *; empty if it cannot be read.
    auto content() const {
        if constexpr (std::is_arithmetic_v<T>) {
            std::optional<T> number(T{});
            if (!get(*number))
                number.reset();
            return number;
        } else {
            return shared();
        }
    }
};

/// A value of type T kept in the object itself, T() unless another one is given. Every store is accepted, also one of
/// an equal value, and reading never fails. A worker may store a status while the user interface reads it. No code of T
/// runs under the lock, so copying, comparing or destroying a T may use the value object again.
template <typename T>
class VValue : public VTypedValueBase<T> {
public:
    /// Has this value.
    explicit VValue(T const& value = T()) : content_(kept(value)) {}

    bool get(T& out) const override {
        out = *content();
        return true;
    }
    bool set(T const& value) override {
        if constexpr (IsNumber) {
            content_.store(value, std::memory_order_release);
        } else {
            // The old content is destroyed at the end, no longer under the lock.
            auto const old = std::atomic_exchange(&content_, share(value));
        }
        return true;
    }
    std::shared_ptr<T const> shared() const override {
        if constexpr (IsNumber)
            return share(*content());
        else
            return content();
    }
    // Compared in place, so that a long text is not copied.
    bool holds(T const& value) const override { return VValueTrait<T>::Equal(*content(), value); }
    ValuePtr clone() const override { return ValuePtr(new VValue(VValueTrait<T>::Clone(*content()))); }
    std::size_t byteCount() const override {
        return sizeof *this + (IsNumber ? 0 : sizeof(T) + FurtherBytes<T>::of(*content()));
    }

private:
    static constexpr bool IsNumber = std::is_arithmetic_v<T>;

    // Not inline: what destroys the content must be in the library that has the template, not in one that is unloaded
    // before the value dies.
    [[gnu::noinline]] static std::shared_ptr<T const> share(T const& value) { return std::make_shared<T const>(value); }

    static auto kept(T const& value) {
        if constexpr (IsNumber)
            return value;
        else
            return share(value);
    }

    // The content, to be read through *.
    auto content() const {
        if constexpr (IsNumber)
            return std::optional<T>(content_.load(std::memory_order_acquire));
        else
            return std::atomic_load(&content_);
    }

    // Replaced as a whole by each store. Read and replaced atomically, as a mutex of its own would be a third of a
    // value object, and networks have a hundred thousand of them. Numbers are stored in place, as simulations change
    // ten thousand of them at a time.
    std::conditional_t<IsNumber, std::atomic<T>, std::shared_ptr<T const>> content_;
};

/// The object as one of values of type T, found by a dynamic type test; null if it is null or of another type. To
/// store a T, or to ask for the type alone; to read one, use valueIn.
template <typename T>
VTypedValueBase<T> const* typedValue(VValueBase const* value) {
    // Almost every value is a VValue, and to compare types is much quicker than to search them.
    if (value && typeid(*value) == typeid(VValue<T>))
        return static_cast<VValue<T> const*>(value);
    return dynamic_cast<VTypedValueBase<T> const*>(value);
}
/// The same for an object that may be changed.
template <typename T>
VTypedValueBase<T>* typedValue(VValueBase* value) {
    return const_cast<VTypedValueBase<T>*>(typedValue<T>(static_cast<VValueBase const*>(value)));
}

/// A copy of the T in a value object: the one way to ask whether it is a T, and which. Empty if the object is null, of
/// another type or cannot be read. What the T refers to is shared with the object. Any thread; prints nothing.
template <typename T>
[[nodiscard]] std::optional<T> valueIn(VValueBase const* value) {
    std::optional<T> content;
    auto const* const typed = typedValue<T>(value);
    // Read in place: a long text is copied once.
    if (typed && !typed->get(content.emplace()))
        content.reset();
    return content;
}
/// The same for a reference.
template <typename T>
[[nodiscard]] std::optional<T> valueIn(ValuePtr const& value) {
    return valueIn<T>(value.get());
}

/// The T in a value object without a copy, if the object keeps it as a whole (VTypedValueBase::shared); null where
/// valueIn is empty.
template <typename T>
[[nodiscard]] std::shared_ptr<T const> sharedValueIn(VValueBase const* value) {
    auto const* const typed = typedValue<T>(value);
    return typed ? typed->shared() : nullptr;
}

/// The T in a value object; `fallback` where valueIn is empty.
template <typename T>
[[nodiscard]] T valueOr(ValuePtr const& value, T const& fallback) {
    auto content = valueIn<T>(value);
    return content ? *std::move(content) : fallback;
}

/// A new value object that holds `value`. The caller's reference owns it.
template <typename T>
[[nodiscard]] ValuePtr makeValue(T const& value) {
    return ValuePtr(new VValue<T>(value));
}

// Compiled into this library alone: a value outlives the plug-in that made it.
extern template class TALO_EXPORT VTypedValueBase<bool>;
extern template class TALO_EXPORT VTypedValueBase<int>;
extern template class TALO_EXPORT VTypedValueBase<double>;
extern template class TALO_EXPORT VTypedValueBase<std::string>;
extern template class TALO_EXPORT VTypedValueBase<std::array<std::string, 1>>;
extern template class TALO_EXPORT VValue<bool>;
extern template class TALO_EXPORT VValue<int>;
extern template class TALO_EXPORT VValue<double>;
extern template class TALO_EXPORT VValue<std::string>;
extern template class TALO_EXPORT VValue<std::array<std::string, 1>>;

} // namespace Kolt
