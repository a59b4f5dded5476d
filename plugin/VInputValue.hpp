#pragma once

#include <cstdio>
#include <lattice/Input.hpp>
#include <lattice/ValuePoolSource.hpp>

namespace Kolt {

/// Prints the line that tells of an edit whose parameter is gone, and flushes it.
inline void reportMissingOwner() {
    std::puts("**POSSIBLE INTERNAL FAULT**: VInputBase without owner? That's not good.");
    std::fflush(stdout);
}

/// Whether a change concerns none of those who show a parameter's value in `pool`. So it is, where the parameter keeps
/// values per pool, with a change in another pool and with a change of the parameter's own value behind the pool's.
inline bool isForOtherPool(VParameter const& parameter, PoolPtr const& pool, ValuePtr const& newValue,
                           VContext const& context) {
    if (!parameter.keepsValuesPerPool())
        return false;
    return (context.pool() && context.pool() != pool) ||
           (newValue == parameter.ownValue() && parameter.getLocalValue(pool, std::string(), false));
}

/// Binds one widget to one parameter, its owner, whose values have type T. It holds the owner weakly and keeps a copy
/// of the value that it last read or wrote. A widget class derives from its Qt class first and from this second.
///
/// It knows what all editors share: which pool they work in, how an edit is committed, and which changes from elsewhere
/// concern them. User-interface thread.
template <typename T>
class VInputValue : public VInput<T> {
public:
    /// Copies the value that the owner has in `pool` into the cache, without creating one. False, and the cache left
    /// alone, where the owner is gone or has no value of type T there.
    bool fetchValue(PoolPtr const& pool, std::string const& member) override;

    /// Stores a value in the owner's value object for `pool`, which is created if it is missing, and in the cache, and
    /// tells the owner's other notifiers, also when the value is the old one. False, and nothing stored, where the
    /// owner is gone, there is no pool, or no value of type T can be had. The input, its widget and the owner may be
    /// gone when it returns: the host tells others, and they may do anything.
    bool setValue(PoolPtr const& pool, std::string const& member, T const& newValue,
                  ValueNotifierList const* alsoNotify) override;

    /// Like fetchValue, but creates the value where it is missing, and copies it to `out` as well.
    bool getValue(PoolPtr const& pool, std::string const& member, T& out) override;

protected:
    /// What a value that arrives from elsewhere is to this input.
    enum class Arrival {
        OtherPool,   ///< belongs to another pool: the shown value stays
        Current,     ///< the input's pool holds it: it is shown
        NotYetStored ///< the input's pool does not hold it: it is shown, and a number is written once
    };

    /// What an edit does where there is no pool.
    enum class WithoutPool {
        Drop, ///< nothing at all
        Try   ///< what it does with one, up to the store, which refuses
    };

    /// The owner may be gone. `poolSource` belongs to the panel and outlives the input; null counts as no pool.
    VInputValue(ParameterRef const& owner, ValuePoolSource* poolSource) : VInput<T>(owner), poolSource_(poolSource) {}

    /// The pool in which the widget works at this moment; null when there is none.
    PoolPtr pool() const { return currentPool(poolSource_); }

    /// The value object that the owner itself holds; null where the owner is gone.
    ValuePtr ownValue() const {
        auto const parameter = this->owner().strong();
        return parameter ? parameter->ownValue() : nullptr;
    }

    /// Copies the value object that the owner itself holds into the cache. False, and the cache left alone, where the
    /// owner is gone or that is no VValue<T>.
    bool readOwnValue();

    /// Copies a value that arrives from elsewhere into the cache. False where there is nothing to show: it is no T, or
    /// only properties changed and it is the value in the cache.
    bool take(ValuePtr const& newValue, ValueMap const* properties);

    /// The value object with which the input starts: the one that its pool holds, else the one that the owner itself
    /// holds; null where the owner is gone.
    ValuePtr firstValue() const {
        auto const parameter = this->owner().strong();
        return parameter ? parameter->effectiveValue(pool()) : nullptr;
    }

    /// To be called before an edit changes what the cached value refers to: where the owner keeps values per pool, the
    /// cache takes the value of the input's pool, which is created if it is missing, so that neither the owner's own
    /// value nor that of another pool changes with it. Without a pool, and where values are shared, the cache stays.
    void cachePoolValue();

    /// What a change from elsewhere is to this input.
    Arrival arrivalOf(ValuePtr const& newValue, VContext const& context) const;

    /// Puts a property of the owner where nothing stands under its name, in the widget's pool and with this input as
    /// the source. A property of another type is never overwritten. Nothing happens where the owner is gone.
    void ensureProperty(std::string const& name, T const& value);

    /// Commits an edit: stores the value in the pool and marks it as changed. Prints the owner-fault line, once, where
    /// the owner is gone or goes meanwhile. Says whether the value was stored and marked. The input and its widget may
    /// be gone afterwards.
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
    auto const* const typed = dynamic_cast<VValue<T> const*>(value.get());
    if (!typed)
        return false;
    parameter->selectMember(member);
    return typed->get(cached_);
}

template <typename T>
bool VInputValue<T>::setValue(PoolPtr const& pool, std::string const& member, T const& newValue,
                              ValueNotifierList const* alsoNotify) {
    auto const parameter = this->owner().strong();
    if (!parameter || !pool)
        return false;
    bool const perPool = parameter->keepsValuesPerPool();
    if (perPool && parameter->declaredType() != Tessera::Typename(typeid(T))) {
        // A fresh value would be of the declared type, so one of another type can only be had where it stands already.
        // Where it does not, nothing is made, and what the pool holds is not replaced.
        if (!dynamic_cast<VValue<T> const*>(parameter->effectiveValue(pool).get()))
            return false;
    }
    auto value = perPool ? parameter->getLocalValue(pool, member, true) : parameter->ownValue();
    auto* typed = dynamic_cast<VValue<T>*>(value.get());
    if (!typed && perPool) {
        value = parameter->freshLocalValue(pool);
        typed = dynamic_cast<VValue<T>*>(value.get());
    }
    if (!typed)
        return false;
    bool const accepted = typed->set(newValue);
    cached_ = newValue;
    // No member is touched from here on: whoever is told may delete this input.
    setParameterValue(*parameter, newValue, pool, member, perPool, Tessera::WeakPtr<ValueNotifier>(this), alsoNotify);
    return accepted;
}

template <typename T>
bool VInputValue<T>::getValue(PoolPtr const& pool, std::string const& member, T& out) {
    auto const parameter = this->owner().strong();
    if (!parameter)
        return false;
    auto const value = parameter->getLocalValue(pool, member, true);
    auto const* const typed = dynamic_cast<VValue<T> const*>(value.get());
    if (!typed)
        return false;
    parameter->selectMember(member);
    if (!typed->get(cached_))
        return false;
    out = cached_;
    return true;
}

template <typename T>
bool VInputValue<T>::readOwnValue() {
    auto const value = ownValue();
    auto const* const typed = dynamic_cast<VValue<T> const*>(value.get());
    return typed && typed->get(cached_);
}

template <typename T>
bool VInputValue<T>::take(ValuePtr const& newValue, ValueMap const* properties) {
    auto const* const typed = dynamic_cast<VTypedValueBase<T> const*>(newValue.get());
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
    bool const isTyped = dynamic_cast<VValue<T> const*>(parameter->effectiveValue(currentPool).get());
    T value{};
    // A value of another type gives way to the edited one, which must not share what the cache refers to either.
    if (!isTyped || !this->getValue(currentPool, std::string(), value))
        cached_ = VValueTrait<T>::Clone(cached_);
}

template <typename T>
typename VInputValue<T>::Arrival VInputValue<T>::arrivalOf(ValuePtr const& newValue, VContext const& context) const {
    auto const parameter = this->owner().strong();
    if (!parameter || !newValue)
        return Arrival::NotYetStored;
    auto const own = parameter->ownValue();
    // A shared value needs no pool to be judged, so a display may be told of it on any thread.
    auto local = own;
    if (parameter->keepsValuesPerPool()) {
        auto const ownPool = pool();
        if (isForOtherPool(*parameter, ownPool, newValue, context))
            return Arrival::OtherPool;
        local = parameter->getLocalValue(ownPool, std::string(), false);
    }
    bool const held = newValue == own || newValue == local || (local && local->equals(*newValue));
    return held ? Arrival::Current : Arrival::NotYetStored;
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
    // A copy: this input may be gone after the store.
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
