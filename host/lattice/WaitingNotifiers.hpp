#pragma once

#include <deque>
#include <lattice/NotifierGuard.hpp>

namespace Kolt {

/// The notifiers with reports that wait for the NotificationThread, each once. Used by this library alone. Any thread.
class WaitingNotifiers {
public:
    /// The one object of the process; never destroyed.
    static WaitingNotifiers& theNotifiers();

    /// Adds a notifier at the end, unless it waits already, and wakes the thread. Nothing happens without a thread.
    void add(std::shared_ptr<NotifierGuard> const& guard);
    /// Takes the first one; null if none waits.
    std::shared_ptr<NotifierGuard> take();
    /// How many wait.
    std::size_t size() const;
    /// Forgets all.
    void clear();

private:
    mutable std::mutex mutex_;
    std::deque<std::shared_ptr<NotifierGuard>> guards_;
};

} // namespace Kolt
