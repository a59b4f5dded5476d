#pragma once

#include <chrono>
#include <tessera/Export.hpp>

namespace Kolt {

/// The thread on which a program with a user interface notifies. While one is installed, a change that another thread
/// reports is delivered on this one (deliverWaiting), soon after; the report returns at once. To one notifier, a report
/// of a parameter in a pool that is not yet delivered gives way to a newer one: what waits does not grow with the
/// number of reports, and as notifiers are handed the live value, they see the newest. A change that this thread
/// reports is delivered at once.
///
/// Without one, as in a program without a user interface, a change is delivered on the thread that reports it.
/// Kolt::makeEditor installs one that is run by Qt's event loop.
class TALO_EXPORT NotificationThread {
public:
    virtual ~NotificationThread();

    /// Asks for a call of deliverWaiting() on this thread, soon. Several requests may be met by one call. Must not call
    /// it itself, and must not wait. Any thread.
    virtual void wake() = 0;

    /// Installs one for the calling thread, in place of the one that was installed; null installs none, and reports
    /// that wait are forgotten. It is not owned. REQUIRES: it is never destroyed, as a worker may be about to wake it.
    static void install(NotificationThread* thread);
    /// The installed one; null for none. Any thread.
    static NotificationThread* installed();
    /// Whether a change that the calling thread reports is delivered on another one. Any thread.
    static bool isElsewhere();

    /// Delivers the reports that wait, at least to one notifier, to each at most once, and to no further one after
    /// `budget`. Returns whether reports still wait. On the thread that installed.
    static bool deliverWaiting(std::chrono::steady_clock::duration budget);
};

} // namespace Kolt
