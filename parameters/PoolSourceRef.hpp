#pragma once

#include <lattice/ValuePoolSource.hpp>

namespace Talo {

/// A weak reference to a pool source, made from the source itself. A window that has the source as a member destroys it
/// before its editors; from then on there is no pool. User-interface thread.
class PoolSourceRef {
public:
    /// The source is not owned. Not explicit: wherever a reference is wanted, a source will do.
    PoolSourceRef(Kolt::ValuePoolSource& source) : source_(&source) {}

    /// The current pool; null for none, and after the source was destroyed.
    Kolt::PoolPtr pool() const { return Kolt::currentPool(source()); }
    /// Null after the source was destroyed.
    Kolt::ValuePoolSource* source() const { return source_.strong().get(); }

private:
    Tessera::WeakPtr<Kolt::ValuePoolSource> source_;
};

} // namespace Talo
