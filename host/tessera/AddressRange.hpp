#pragma once

#include <cstdint>

namespace Tessera {

/// A part of the process's memory, such as what a library occupies. Any thread.
struct AddressRange {
    std::uintptr_t begin = 0; ///< the first address
    std::uintptr_t end = 0;   ///< the address after the last one; equal to `begin` for an empty range

    /// Whether an address lies in the range.
    bool contains(void const* address) const {
        auto const place = reinterpret_cast<std::uintptr_t>(address);
        return place >= begin && place < end;
    }
};

} // namespace Tessera
