#pragma once

#include <csignal>
#include <sys/resource.h>

/// As long as it lives no file of this process can grow beyond a size, in bytes: a write that would do so fails, as on
/// a disk without room.
class FullDisk {
public:
    explicit FullDisk(rlim_t size) : oldHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &oldLimit_);
        rlimit const limit{size, oldLimit_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &oldLimit_);
        std::signal(SIGXFSZ, oldHandler_);
    }
    FullDisk(FullDisk const&) = delete;
    FullDisk& operator=(FullDisk const&) = delete;

private:
    void (*const oldHandler_)(int);
    rlimit oldLimit_{};
};
