#include "FileFaults.hpp"

#include "RealFunction.hpp"

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

thread_local bool isCounting = false;
thread_local int failing = 0;
thread_local int calls = 0;
thread_local char const* failed = nullptr;

/// Whether this call must fail.
bool fails(char const* name) {
    if (!isCounting || ++calls != failing)
        return false;
    failed = name;
    errno = EIO;
    return true;
}

} // namespace

FileFault::FileFault(int number) {
    failing = number;
    calls = 0;
    failed = nullptr;
    isCounting = true;
}

FileFault::~FileFault() {
    isCounting = false;
}

int FileFault::count() {
    return calls;
}

std::string FileFault::failedCall() {
    return failed ? failed : "";
}

extern "C" {

// The names of the parameters are reserved ones in the headers of the system.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)

int open64(char const* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    auto const mode = va_arg(arguments, mode_t);
    va_end(arguments);
    static auto* const next = real(&open64, "open64");
    // Without unnamed files the library makes a named one, as on file systems that have none.
    bool const writes = (flags & (O_WRONLY | O_RDWR)) != 0;
    return writes && fails("open") ? -1 : next(path, flags, mode);
}

ssize_t write(int file, void const* bytes, size_t size) {
    static auto* const next = real(&write, "write");
    return fails("write") ? -1 : next(file, bytes, size);
}

int fdatasync(int file) {
    static auto* const next = real(&fdatasync, "fdatasync");
    return fails("fdatasync") ? -1 : next(file);
}

int fsync(int file) {
    static auto* const next = real(&fsync, "fsync");
    return fails("fsync") ? -1 : next(file);
}

int rename(char const* from, char const* to) noexcept {
    static auto* const next = real(&rename, "rename");
    return fails("rename") ? -1 : next(from, to);
}

int renameat2(int fromFolder, char const* from, int toFolder, char const* to, unsigned flags) noexcept {
    static auto* const next = real(&renameat2, "renameat2");
    return fails("renameat2") ? -1 : next(fromFolder, from, toFolder, to, flags);
}

int link(char const* from, char const* to) noexcept {
    static auto* const next = real(&link, "link");
    return fails("link") ? -1 : next(from, to);
}

int linkat(int fromFolder, char const* from, int toFolder, char const* to, int flags) noexcept {
    static auto* const next = real(&linkat, "linkat");
    return fails("linkat") ? -1 : next(fromFolder, from, toFolder, to, flags);
}

int close(int file) {
    static auto* const next = real(&close, "close");
    int const result = next(file);
    return fails("close") ? -1 : result;
}

// NOLINTEND(readability-inconsistent-declaration-parameter-name)
} // extern "C"
