#pragma once

#include <atomic>
#include <condition_variable>
#include <lattice/Context.hpp>
#include <lattice/ValueMap.hpp>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace Kolt {

class ValueNotifier;
class ValueNotifierList;

/// Makes the deliveries to one notifier exclude each other and its destruction. No lock is held while the notifier
/// runs, and no report waits for another thread, so threads that notify each other's parameters do not block each
/// other: a report for a notifier that another thread is notifying is kept, and that thread delivers it afterwards. So
/// is a report that the NotificationThread is to deliver. Shared by the notifier and the lists that contain it; used by
/// this library alone. Any thread.
class NotifierGuard : public std::enable_shared_from_this<NotifierGuard> {
public:
    /// A change that a list notifies of.
    struct Report {
        ValueNotifierList const* list; ///< compared, never used
        ValuePtr value;                ///< the live value
        VContext context;              ///< holds the pool of the change
        ValueMap const* properties;    ///< null if the value changed
    };

    /// For a notifier, which calls close() before it is destroyed.
    explicit NotifierGuard(ValueNotifier* notifier);
    ~NotifierGuard();
    NotifierGuard(NotifierGuard const&) = delete;
    NotifierGuard& operator=(NotifierGuard const&) = delete;

    /// Null after close().
    ValueNotifier* notifier() const { return notifier_; }
    /// Delivers the report now, or keeps it for the thread that is to deliver it. It takes the place of a kept report
    /// of the same list and pool.
    void deliver(Report const& report);
    /// Delivers the reports that were kept before the call, unless another thread is delivering.
    void deliverKept();
    /// Calls ValueNotifier::onListGone() of the notifier, as for a delivery. Waits for a delivery by another thread
    /// that is under way.
    void reportListGone();
    /// Ends all deliveries. Waits for one by another thread that is under way.
    void close();

private:
    using Lock = std::unique_lock<std::mutex>;
    struct KeptReport {
        Report report;
        std::shared_ptr<ValueMap const> properties;
    };
    class Delivery;
    bool isBusyElsewhere() const;
    void awaitOthers(Lock& lock);
    std::vector<KeptReport> takeReplaced(Report const& report);
    void keep(Report const& report);
    void run(Report const& report, Lock& lock);
    void runKept(Lock& lock);

    std::mutex mutex_;
    std::condition_variable becameIdle_;
    std::atomic<ValueNotifier*> notifier_;
    std::vector<KeptReport> kept_;
    // The thread that delivers, and in how many deliveries it is: a notifier may be notified while it is notified.
    std::thread::id deliverer_;
    int depth_ = 0;
};

} // namespace Kolt
