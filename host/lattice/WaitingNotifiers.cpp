#include <lattice/WaitingNotifiers.hpp>

#include <algorithm>
#include <lattice/NotificationThread.hpp>
#include <tessera/NoDestructor.hpp>

namespace Kolt {

WaitingNotifiers& WaitingNotifiers::theNotifiers() {
    static Tessera::NoDestructor<WaitingNotifiers> notifiers;
    return *notifiers;
}

void WaitingNotifiers::add(std::shared_ptr<NotifierGuard> const& guard) {
    auto* const thread = NotificationThread::installed();
    if (!thread)
        return;
    {
        std::lock_guard const lock(mutex_);
        if (std::find(guards_.begin(), guards_.end(), guard) != guards_.end())
            return;
        guards_.push_back(guard);
    }
    thread->wake();
}

std::shared_ptr<NotifierGuard> WaitingNotifiers::take() {
    std::lock_guard const lock(mutex_);
    if (guards_.empty())
        return nullptr;
    auto const first = guards_.front();
    guards_.pop_front();
    return first;
}

std::size_t WaitingNotifiers::size() const {
    std::lock_guard const lock(mutex_);
    return guards_.size();
}

void WaitingNotifiers::clear() {
    while (take()) {
    }
}

} // namespace Kolt
