#pragma once

#include <string>
#include <tessera/Reference.hpp>

namespace Kolt {

/// The context in which a parameter has a value: one parameter can have different values in different pools. Pools
/// are distinguished by their identity; the name is for people and need not be unique. User-interface thread.
class TALO_EXPORT ValuePool : public Tessera::ReferenceBase<ValuePool> {
public:
    /// A pool with this name, UTF-8.
    explicit ValuePool(std::string name = {});
    ~ValuePool() override;

    /// The name, UTF-8.
    std::string const& Name() const { return name_; }

private:
    std::string name_;
};

/// A reference that keeps a pool alive. Null means: no pool.
using PoolPtr = Tessera::StrongPtr<ValuePool>;

} // namespace Kolt
