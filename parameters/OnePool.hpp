#pragma once

#include <parameters/PoolSource.hpp>
#include <string>
#include <tessera/Export.hpp>

namespace Talo {

/// A pool source with one fixed pool, for hosts that do not use pools. It must outlive the editors made with it.
/// User-interface thread.
class TALO_EXPORT OnePool : public PoolSource {
public:
    /// Makes the pool.
    explicit OnePool(std::string const& name = {}) { setPool(Kolt::PoolPtr(new Kolt::ValuePool(name))); }

private:
    using PoolSource::setPool;
};

} // namespace Talo
