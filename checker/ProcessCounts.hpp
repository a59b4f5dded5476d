#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <malloc.h>
#include <system_error>
#include <thread>

extern "C" [[gnu::weak]] std::size_t __sanitizer_get_current_allocated_bytes();

namespace Checker {

/// The memory that the process has allocated and not freed, in bytes. The sanitizers have an allocator of their own, of
/// which mallinfo2 knows nothing.
inline std::size_t heapInUse() {
    return __sanitizer_get_current_allocated_bytes ? __sanitizer_get_current_allocated_bytes() : mallinfo2().uordblks;
}

/// How many entries a folder has; 0 for none.
inline std::size_t entryCount(char const* folder) {
    std::error_code ignored;
    std::filesystem::directory_iterator const entries(folder, ignored);
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

/// How many threads the process has. Waits up to half a second for those that are ending: the system lists a thread for
/// a moment after it was joined.
inline std::size_t threadCount() {
    using namespace std::chrono_literals;
    auto count = entryCount("/proc/self/task");
    for (auto waited = 0ms; count > 1 && waited < 500ms; waited += 5ms) {
        std::this_thread::sleep_for(5ms);
        count = entryCount("/proc/self/task");
    }
    return count;
}

/// How many files the process has open, with one for the counting itself.
inline std::size_t openFileCount() {
    return entryCount("/proc/self/fd");
}

} // namespace Checker
