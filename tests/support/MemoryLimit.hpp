#pragma once

#include <fstream>
#include <sys/resource.h>
#include <unistd.h>

/// While this lives, the process can map at most this many bytes more than it has mapped; the stack of a thread takes 8
/// MB. Not usable with a sanitizer, which needs the whole address space.
class MemoryLimit {
public:
    explicit MemoryLimit(rlim_t bytes) {
        getrlimit(RLIMIT_AS, &before_);
        rlimit const limited{used() + bytes, before_.rlim_max};
        setrlimit(RLIMIT_AS, &limited);
    }
    ~MemoryLimit() { setrlimit(RLIMIT_AS, &before_); }
    MemoryLimit(MemoryLimit const&) = delete;
    MemoryLimit& operator=(MemoryLimit const&) = delete;

private:
    static rlim_t used() {
        rlim_t pages = 0;
        std::ifstream("/proc/self/statm") >> pages;
        return pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
    }

    rlimit before_{};
};
