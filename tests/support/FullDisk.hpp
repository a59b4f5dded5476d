#pragma once

#include <csignal>
#include <sys/resource.h>

/// While this lives, no file of the process can grow beyond a size in bytes: a write beyond it fails, as on a full
/// disk.
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
