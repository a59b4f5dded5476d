#include <lattice/NotificationThread.hpp>

#include <atomic>
#include <lattice/WaitingNotifiers.hpp>
#include <thread>

namespace Kolt {

namespace {

std::atomic<NotificationThread*> installedThread{nullptr};
std::atomic<std::thread::id> installedId{};

} // namespace

NotificationThread::~NotificationThread() = default;

void NotificationThread::install(NotificationThread* thread) {
    installedId = std::this_thread::get_id();
    installedThread = thread;
    if (!thread)
        WaitingNotifiers::theNotifiers().clear();
}

NotificationThread* NotificationThread::installed() {
    return installedThread;
}

bool NotificationThread::isElsewhere() {
    return installed() && installedId.load() != std::this_thread::get_id();
}

bool NotificationThread::deliverWaiting(std::chrono::steady_clock::duration budget) {
    auto const end = std::chrono::steady_clock::now() + budget;
    auto& waiting = WaitingNotifiers::theNotifiers();
    // Those that come meanwhile wait for the next call, so that an endless flow of reports ends it.
    for (auto left = waiting.size(); left > 0; --left) {
        auto const guard = waiting.take();
        if (!guard)
            break;
        guard->deliverKept();
        if (std::chrono::steady_clock::now() >= end)
            break;
    }
    return waiting.size() > 0;
}

} // namespace Kolt
