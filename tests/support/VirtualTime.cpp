#include "VirtualTime.hpp"

#include "RealFunction.hpp"

#include <algorithm>
#include <cstdint>
#include <ctime>
#include <poll.h>

namespace {

constexpr std::int64_t second = 1'000'000'000;
constexpr std::int64_t millisecond = 1'000'000;

thread_local bool isVirtual = false;
// Both in nanoseconds. How far the clock of the thread is ahead of the real one when it runs.
thread_local std::int64_t ahead = 0;
// What the clock shows while it stands.
thread_local std::int64_t now = 0;

std::int64_t nanoseconds(timespec const& time) {
    return time.tv_sec * second + time.tv_nsec;
}

int realTime(clockid_t clock, timespec* time) {
    static auto* const next = real(&clock_gettime, "clock_gettime");
    return next(clock, time);
}

std::int64_t realTime() {
    timespec time{};
    realTime(CLOCK_MONOTONIC, &time);
    return nanoseconds(time);
}

int realSleep(timespec const* duration, timespec* remaining) {
    static auto* const next = real(&nanosleep, "nanosleep");
    return next(duration, remaining);
}

} // namespace

VirtualTime::VirtualTime() {
    now = realTime() + ahead;
    isVirtual = true;
}

VirtualTime::~VirtualTime() {
    isVirtual = false;
    // A clock never goes back.
    ahead = std::max(std::int64_t{0}, now - realTime());
}

void VirtualTime::advance(int milliseconds) {
    if (isVirtual)
        now += milliseconds * millisecond;
}

void VirtualTime::waitForThreads(int milliseconds) {
    timespec const duration{0, milliseconds * millisecond};
    realSleep(&duration, nullptr);
}

bool VirtualTime::isRunning() {
    return isVirtual;
}

extern "C" {

// The names of the parameters are reserved ones in the headers of the system.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)

int clock_gettime(clockid_t clock, timespec* time) noexcept {
    int const result = realTime(clock, time);
    bool const isOfTimers = clock == CLOCK_MONOTONIC || clock == CLOCK_MONOTONIC_RAW || clock == CLOCK_MONOTONIC_COARSE;
    if (result != 0 || !isOfTimers || (!isVirtual && ahead == 0))
        return result;
    auto const shown = isVirtual ? now : nanoseconds(*time) + ahead;
    time->tv_sec = shown / second;
    time->tv_nsec = shown % second;
    return 0;
}

int nanosleep(timespec const* duration, timespec* remaining) {
    if (isVirtual && duration)
        now += nanoseconds(*duration);
    return realSleep(duration, remaining);
}

int poll(pollfd* files, nfds_t count, int timeout) {
    static auto* const next = real(&poll, "poll");
    if (!isVirtual || timeout <= 0)
        return next(files, count, timeout);
    int const ready = next(files, count, 0);
    if (ready == 0)
        now += timeout * millisecond;
    return ready;
}

int ppoll(pollfd* files, nfds_t count, timespec const* timeout, sigset_t const* mask) {
    static auto* const next = real(&ppoll, "ppoll");
    if (!isVirtual || !timeout || nanoseconds(*timeout) <= 0)
        return next(files, count, timeout, mask);
    timespec const atOnce{};
    int const ready = next(files, count, &atOnce, mask);
    if (ready == 0)
        now += nanoseconds(*timeout);
    return ready;
}

// NOLINTEND(readability-inconsistent-declaration-parameter-name)
} // extern "C"
