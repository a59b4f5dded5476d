#include <lattice/NotifierGuard.hpp>

#include <algorithm>
#include <functional>
#include <lattice/InputFaults.hpp>
#include <lattice/NotificationThread.hpp>
#include <lattice/ValueNotifier.hpp>
#include <lattice/WaitingNotifiers.hpp>

namespace Kolt {

/// One delivery that is under way, on this thread and without the lock.
class NotifierGuard::Delivery {
public:
    Delivery(NotifierGuard& guard, Lock& lock) : guard_(guard), lock_(lock) {
        guard_.deliverer_ = std::this_thread::get_id();
        ++guard_.depth_;
        lock_.unlock();
    }
    ~Delivery() {
        lock_.lock();
        if (--guard_.depth_ == 0)
            guard_.becameIdle_.notify_all();
    }
    Delivery(Delivery const&) = delete;
    Delivery& operator=(Delivery const&) = delete;

private:
    NotifierGuard& guard_;
    Lock& lock_;
};

NotifierGuard::NotifierGuard(ValueNotifier* notifier) : notifier_(notifier) {}

NotifierGuard::~NotifierGuard() = default;

bool NotifierGuard::isBusyElsewhere() const {
    return depth_ > 0 && deliverer_ != std::this_thread::get_id();
}

void NotifierGuard::deliver(Report const& report) {
    // Destroyed last, without the lock, as values are code of others.
    std::vector<KeptReport> replaced;
    bool waits = NotificationThread::isElsewhere();
    {
        Lock lock(mutex_);
        if (!notifier_)
            return;
        replaced = takeReplaced(report);
        if (waits || isBusyElsewhere()) {
            keep(report);
        } else {
            run(report, lock);
            // The user interface is woken for what others reported meanwhile, and is not kept here by it.
            if (depth_ == 0 && !NotificationThread::installed())
                runKept(lock);
            waits = depth_ == 0 && !kept_.empty();
        }
    }
    if (waits)
        WaitingNotifiers::theNotifiers().add(shared_from_this());
}

void NotifierGuard::deliverKept() {
    std::vector<KeptReport> reports;
    Lock lock(mutex_);
    if (isBusyElsewhere())
        return;
    reports = std::exchange(kept_, {});
    for (auto const& kept : reports)
        run(kept.report, lock);
    lock.unlock();
}

void NotifierGuard::awaitOthers(Lock& lock) {
    becameIdle_.wait(lock, [this] { return !isBusyElsewhere(); });
}

void NotifierGuard::reportListGone() {
    Lock lock(mutex_);
    awaitOthers(lock);
    auto* const notifier = notifier_.load();
    if (!notifier)
        return;
    Delivery const delivery(*this, lock);
    notifier->onListGone();
}

void NotifierGuard::close() {
    std::vector<KeptReport> forgotten;
    Lock lock(mutex_);
    notifier_ = nullptr;
    forgotten = std::exchange(kept_, {});
    awaitOthers(lock);
    lock.unlock();
}

std::vector<NotifierGuard::KeptReport> NotifierGuard::takeReplaced(Report const& report) {
    if (kept_.empty())
        return {};
    auto const isReplaced = [&](KeptReport const& kept) {
        return kept.report.list == report.list && kept.report.context.pool() == report.context.pool() &&
               (kept.report.properties == nullptr) == (report.properties == nullptr);
    };
    auto const first = std::stable_partition(kept_.begin(), kept_.end(), std::not_fn(isReplaced));
    std::vector<KeptReport> replaced(std::make_move_iterator(first), std::make_move_iterator(kept_.end()));
    kept_.erase(first, kept_.end());
    return replaced;
}

void NotifierGuard::keep(Report const& report) {
    // The caller's map may be gone when the report is delivered.
    auto const properties = report.properties ? std::make_shared<ValueMap const>(*report.properties) : nullptr;
    kept_.push_back({report, properties});
    kept_.back().report.properties = properties.get();
}

void NotifierGuard::run(Report const& report, Lock& lock) {
    auto* const notifier = notifier_.load();
    if (!notifier)
        return;
    Delivery const delivery(*this, lock);
    try {
        notifier->onValueChange(report.value, report.context, report.properties);
    } catch (...) {
        // It may have destroyed itself before.
        if (auto* const living = notifier_.load())
            InputFaults::notificationEnded(*living);
        else
            throw;
    }
}

void NotifierGuard::runKept(Lock& lock) {
    while (!kept_.empty()) {
        auto reports = std::exchange(kept_, {});
        for (auto const& kept : reports)
            run(kept.report, lock);
        lock.unlock();
        reports.clear();
        lock.lock();
    }
}

} // namespace Kolt
