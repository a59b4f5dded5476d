#pragma once

#include <cstddef>
#include <malloc.h>

extern "C" [[gnu::weak]] std::size_t __sanitizer_get_current_allocated_bytes();

namespace Checker {

/// The memory that the process has allocated and not freed, in bytes. The sanitizers have an allocator of their own, of
/// which mallinfo2 knows nothing.
inline std::size_t heapInUse() {
    return __sanitizer_get_current_allocated_bytes ? __sanitizer_get_current_allocated_bytes() : mallinfo2().uordblks;
}

} // namespace Checker
