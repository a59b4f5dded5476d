#pragma once

#include <cstdio>
#include <lattice/Input.hpp>
#include <lattice/ValuePoolSource.hpp>
#include <optional>
#include <typeinfo>

namespace Kolt {

/// Prints the owner-fault line, which says that the parameter of an edit was deleted, and flushes it. Any thread.
inline void reportMissingOwner() {
    std::puts("**POSSIBLE INTERNAL FAULT**: VInputBase without owner? That's not good.");
    std::fflush(stdout);
}

/// Whether a change leaves the parameter's value in `pool` unchanged, so that no editor in that pool shows it. This is
/// so if the parameter keeps values per pool, and the change is in another pool, or of the parameter's own value while
/// `pool` has a value of its own. User-interface thread.
inline bool isForOtherPool(VParameter const& parameter, PoolPtr const& pool, ValuePtr const& newValue,
                           VContext const& context) {
    if (!parameter.keepsValuesPerPool())
        return false;
    return (context.pool() && context.pool() != pool) ||
           (newValue == parameter.ownValue() && parameter.getLocalValue(pool, std::string(), false));
}

/// The object as one that contains a T (VValue<T>), found by a dynamic type test; null for null and for any other
/// object. Editors start from such values and store into them. A T that is computed or kept elsewhere (VTypedValueBase)
/// can only be shown, with VInputValue::take. Any thread.
template <typename T>
VValue<T>* storedValue(ValuePtr const& value) {
    auto* const object = value.get();
    // To compare types is much quicker than to search them.
    if (object && typeid(*object) == typeid(VValue<T>))
        return static_cast<VValue<T>*>(object);
    return dynamic_cast<VValue<T>*>(object);
}

/// A copy of the T that an object contains; empty if storedValue is null. What the T refers to is shared. Any thread.
template <typename T>
std::optional<T> storedValueIn(ValuePtr const& value) {
    std::optional<T> content;
    auto const* const stored = storedValue<T>(value);
    if (stored && !stored->get(content.emplace()))
        content.reset();
    return content;
}

/// Binds one widget to one parameter, its owner, whose values have type T. It refers to the owner weakly and keeps a
/// copy of the value that it last read or wrote, the cache. A widget class derives from its Qt class first and from
/// this second. Its constructor shows the value, connects the controls and ends with activateNotification().
///
/// It implements what all editors share: which pool they work in, how an edit is committed, and which changes from
/// elsewhere concern them. User-interface thread.
template <typename T>
class VInputValue : public VInput<T> {
public:
    /// Copies the value that the owner has in `pool` into the cache, without creating one. False, and the cache
    /// unchanged, if the owner was deleted or has no value of type T there. `member` is passed on to the owner.
    bool fetchValue(PoolPtr const& pool, std::string const& member) override;

    /// Stores a value in the owner's value object for `pool`, which is created if it is missing, and in the cache.
    /// Notifies the owner's other notifiers and `alsoNotify`, which may be null, also of an equal value. False, and
    /// nothing stored, if the owner was deleted, `pool` is null, or no value of type T can be had. The notifiers may do
    /// anything: the input, its widget and the owner may be deleted when it returns.
    bool setValue(PoolPtr const& pool, std::string const& member, T const& newValue,
                  ValueNotifierList const* alsoNotify) override;

    /// Like fetchValue, but creates the value if it is missing, and copies it to `out` as well. `out` is unchanged if
    /// it returns false.
    bool getValue(PoolPtr const& pool, std::string const& member, T& out) override;

protected:
    /// What a value that arrives from elsewhere is to this input.
    enum class Arrival {
        OtherPool,   ///< belongs to another pool: the shown value stays
        Current,     ///< the input's pool holds it: it is shown
        NotYetStored ///< the input's pool does not hold it: it is shown, and a number is written once
    };

    /// What an edit does without a pool.
    enum class WithoutPool {
        Drop, ///< nothing at all
        Try   ///< what it does with one, up to the store, which refuses
    };

    /// The owner may have been deleted. `poolSource` belongs to the host and must outlive the input; null counts as no
    /// pool.
    VInputValue(ParameterRef const& owner, ValuePoolSource* poolSource) : VInput<T>(owner), poolSource_(poolSource) {}

    /// The pool in which the widget works now; null if there is none.
    PoolPtr pool() const { return currentPool(poolSource_); }

    /// The value object that the owner itself holds; null if the owner was deleted.
    ValuePtr ownValue() const {
        auto const parameter = this->owner().strong();
        return parameter ? parameter->ownValue() : nullptr;
    }

    /// Copies the T that a value object contains into the cache. False, and the cache unchanged, if the object is null
    /// or no VValue<T>.
    bool cacheStored(ValuePtr const& value);

    /// Copies the T of the owner's own value object into the cache. False, and the cache unchanged, if that is no
    /// VValue<T> or the owner was deleted.
    bool readOwnValue() { return cacheStored(ownValue()); }

    /// Copies a value from elsewhere into the cache. False if there is nothing to show: it is no T, or only properties
    /// changed (`properties` is not null) and it equals the value in the cache.
    bool take(ValuePtr const& newValue, ValueMap const* properties);

    /// The value object with which the input starts: the one that its pool holds, else the one that the owner itself
    /// holds; null if the owner was deleted.
    ValuePtr firstValue() const {
        auto const parameter = this->owner().strong();
        return parameter ? parameter->effectiveValue(pool()) : nullptr;
    }

    /// Call it before an edit changes what the cached value refers to. If the owner keeps values per pool, the cache
    /// takes the value of the input's pool; if the pool has none, a copy of the owner's own value, which the commit
    /// stores. So neither the owner's own value nor that of another pool changes with the edit, and an edit that is
    /// refused leaves the pool without a value. Without a pool, and if values are shared, the cache is unchanged.
    void cachePoolValue();

    /// What a change from elsewhere is to this input. Any thread if the owner's values are shared.
    Arrival arrivalOf(ValuePtr const& newValue, VContext const& context) const;

    /// Sets a property of the owner if it has none of that name, in the widget's pool and with this input as the
    /// source. A property of another type is never overwritten. Nothing happens if the owner was deleted.
    void ensureProperty(std::string const& name, T const& value);

    /// Commits an edit: stores the value in the pool, notifies as setValue does, and marks the value as changed. Prints
    /// the owner-fault line, once, if the owner was deleted before or meanwhile. Returns whether the value was stored
    /// and marked. The input and its widget may be deleted when it returns.
    bool commit(T const& value, WithoutPool withoutPool = WithoutPool::Drop,
                ValueNotifierList const* alsoNotify = nullptr);

    /// The value last read or written.
    T cached_{};

private:
    ValuePoolSource* poolSource_;
};

template <typename T>
bool VInputValue<T>::fetchValue(PoolPtr const& pool, std::string const& member) {
    auto const parameter = this->owner().strong();
    if (!parameter)
        return false;
    auto const value = parameter->getLocalValue(pool, member, false);
    if (!storedValue<T>(value))
        return false;
    parameter->selectMember(member);
    return cacheStored(value);
}

template <typename T>
bool VInputValue<T>::setValue(PoolPtr const& pool, std::string const& member, T const& newValue,
                              ValueNotifierList const* alsoNotify) {
    auto const parameter = this->owner().strong();
    if (!parameter || !pool)
        return false;
    bool const perPool = parameter->keepsValuesPerPool();
    if (perPool && parameter->declaredType() != Tessera::Typename(typeid(T))) {
        // A fresh value would be of the declared type, so the pool's value of another type must not be lost for it.
        if (!storedValue<T>(parameter->effectiveValue(pool)))
            return false;
    }
    auto value = perPool ? parameter->getLocalValue(pool, member, true) : parameter->ownValue();
    auto* stored = storedValue<T>(value);
    if (!stored && perPool) {
        value = parameter->freshLocalValue(pool);
        stored = storedValue<T>(value);
    }
    if (!stored)
        return false;
    bool const accepted = stored->set(newValue);
    cached_ = newValue;
    // No member is used from here on: a notifier may delete this input. The first store says whether it is accepted.
    static_cast<void>(setParameterValue(*parameter, newValue, pool, member, perPool,
                                        Tessera::WeakPtr<ValueNotifier>(this), alsoNotify));
    return accepted;
}

template <typename T>
bool VInputValue<T>::getValue(PoolPtr const& pool, std::string const& member, T& out) {
    auto const parameter = this->owner().strong();
    if (!parameter)
        return false;
    auto const value = parameter->getLocalValue(pool, member, true);
    if (!storedValue<T>(value))
        return false;
    parameter->selectMember(member);
    if (!cacheStored(value))
        return false;
    out = cached_;
    return true;
}

template <typename T>
bool VInputValue<T>::cacheStored(ValuePtr const& value) {
    auto content = storedValueIn<T>(value);
    if (!content)
        return false;
    cached_ = *std::move(content);
    return true;
}

template <typename T>
bool VInputValue<T>::take(ValuePtr const& newValue, ValueMap const* properties) {
    auto const* const typed = typedValue<T>(newValue.get());
    T arrived{};
    if (!typed || !typed->get(arrived) || (properties && VValueTrait<T>::Equal(arrived, cached_)))
        return false;
    cached_ = std::move(arrived);
    return true;
}

template <typename T>
void VInputValue<T>::cachePoolValue() {
    auto const parameter = this->owner().strong();
    auto const currentPool = pool();
    if (!parameter || !currentPool || !parameter->keepsValuesPerPool())
        return;
    if (this->fetchValue(currentPool, std::string()))
        return;
    // A pool's value of another type is replaced by the edited one.
    if (!parameter->getLocalValue(currentPool, std::string(), false))
        readOwnValue();
    cached_ = VValueTrait<T>::Clone(cached_);
}

template <typename T>
typename VInputValue<T>::Arrival VInputValue<T>::arrivalOf(ValuePtr const& newValue, VContext const& context) const {
    auto const parameter = this->owner().strong();
    if (!parameter || !newValue)
        return Arrival::NotYetStored;
    auto const own = parameter->ownValue();
    // For a shared value the pool source is not asked, so a display may be notified of it on any thread.
    auto local = own;
    if (parameter->keepsValuesPerPool()) {
        auto const ownPool = pool();
        if (isForOtherPool(*parameter, ownPool, newValue, context))
            return Arrival::OtherPool;
        local = parameter->getLocalValue(ownPool, std::string(), false);
    }
    bool const isCurrent = newValue == own || newValue == local || (local && local->equals(*newValue));
    return isCurrent ? Arrival::Current : Arrival::NotYetStored;
}

template <typename T>
void VInputValue<T>::ensureProperty(std::string const& name, T const& value) {
    auto const parameter = this->owner().strong();
    if (!parameter)
        return;
    auto const* const properties = parameter->properties();
    if (properties && properties->getValue(name))
        return;
    parameter->setProperty(name, makeValue(value), Tessera::WeakPtr<ValueNotifier>(this), nullptr, pool());
}

template <typename T>
bool VInputValue<T>::commit(T const& value, WithoutPool withoutPool, ValueNotifierList const* alsoNotify) {
    auto const currentPool = pool();
    if (!currentPool && withoutPool == WithoutPool::Drop)
        return false;
    // A copy: the store may delete this input.
    auto const owner = this->owner();
    if (!owner) {
        reportMissingOwner();
        return false;
    }
    if (!this->setValue(currentPool, std::string(), value, alsoNotify))
        return false;
    auto const parameter = owner.strong();
    if (!parameter) {
        reportMissingOwner();
        return false;
    }
    markValueChanged(*parameter, currentPool);
    return true;
}

} // namespace Kolt
