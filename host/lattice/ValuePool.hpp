#pragma once

#include <string>
#include <tessera/Reference.hpp>

namespace Kolt {

/// The context in which a parameter has a value: one parameter can have different values in different pools. A pool
/// is told apart by its identity; the name is for people. User-interface thread.
class ValuePool : public Tessera::ReferenceBase<ValuePool> {
public:
    explicit ValuePool(std::string name = {});
    ~ValuePool() override;
    std::string const& Name() const { return name_; }

private:
    std::string name_;
};

using PoolPtr = Tessera::StrongPtr<ValuePool>;

/// Something that yields the current value pool.
class ValuePoolProvider : public Tessera::ReferenceBase<ValuePoolProvider> {
public:
    ~ValuePoolProvider() override;
    /// The current pool; null when there is none.
    virtual PoolPtr getValuePool() const = 0;
};

/// Where an editor finds its value pool. The host owns it. An editor that makeEditor made may outlive it and then has
/// no pool; one that was made by its creator directly must not.
///
/// Plug-ins expect the order of the virtual operations: the reference hook of ReferenceBase, the destructor, the
/// request for the provider.
class ValuePoolSource : public Tessera::ReferenceBase<ValuePoolSource> {
public:
    ~ValuePoolSource() override;
    /// The current provider; null when there is none, which counts as no pool.
    virtual Tessera::StrongPtr<ValuePoolProvider> getValuePoolProvider() const = 0;
};

/// The provider's pool; null for no provider.
PoolPtr currentPool(Tessera::StrongPtr<ValuePoolProvider> const& provider);
/// The pool that the source stands for at this moment; null for a null source, provider or pool.
PoolPtr currentPool(ValuePoolSource const* source);

/// The circumstances of a change: the pool in which it happened.
class VContext {
public:
    /// What a context carries and others may keep beyond it.
    class Addendum : public Tessera::ReferenceBase<Addendum> {
    public:
        explicit Addendum(PoolPtr const& pool);
        ~Addendum() override;
        /// The pool; null for a change that belongs to no pool.
        PoolPtr const& pool() const { return pool_; }

    private:
        PoolPtr pool_;
    };

    /// Takes the pool from the addendum; a null one gives a context without a pool.
    explicit VContext(Tessera::StrongPtr<Addendum> const& addendum);
    /// A context in `pool`. A null addendum makes a new one that holds the pool; a given one is kept as it is.
    VContext(PoolPtr const& pool, Tessera::StrongPtr<Addendum> const& addendum);
    ~VContext();

    /// The pool of the change; null when it belongs to none.
    PoolPtr const& pool() const { return pool_; }
    Tessera::StrongPtr<Addendum> const& addendum() const;

private:
    PoolPtr pool_;
    // Few ask for an addendum, so a new one is made for the first who does.
    mutable Tessera::StrongPtr<Addendum> addendum_;
    mutable bool addendumToBeMade_ = false;
};

} // namespace Kolt
