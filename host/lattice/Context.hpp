#pragma once

#include <lattice/ValuePool.hpp>

namespace Kolt {

/// The circumstances of a change: the pool in which it happened. A context lives as long as one notification; what is
/// kept beyond it is the addendum. One thread at a time.
class TALO_EXPORT VContext {
public:
    /// The part of a context that others may keep.
    class TALO_EXPORT Addendum : public Tessera::ReferenceBase<Addendum> {
    public:
        /// Holds this pool.
        explicit Addendum(PoolPtr const& pool);
        ~Addendum() override;

        /// The pool; null for a change that belongs to no pool.
        PoolPtr const& pool() const { return pool_; }

    private:
        PoolPtr pool_;
    };

    /// A context in the pool of the addendum; a null addendum gives a context without a pool.
    explicit VContext(Tessera::StrongPtr<Addendum> const& addendum);
    /// A context in `pool`. A null addendum is replaced by a new one that holds the pool; another one is kept as it
    /// is, even if it holds another pool.
    VContext(PoolPtr const& pool, Tessera::StrongPtr<Addendum> const& addendum);
    ~VContext();

    /// The pool of the change; null if it belongs to none.
    PoolPtr const& pool() const { return pool_; }
    /// The addendum; null only if the context was made from a null addendum alone.
    Tessera::StrongPtr<Addendum> const& addendum() const;

private:
    PoolPtr pool_;
    // Few ask for an addendum, so the first request makes it.
    mutable Tessera::StrongPtr<Addendum> addendum_;
    mutable bool addendumToBeMade_ = false;
};

} // namespace Kolt
