#pragma once

#include <atomic>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <QObject>
#include <QThread>

namespace Fractal {

/// Runs tasks one after another on its own thread, which may paint on images. Construct, use and destroy it on the
/// user-interface thread. The destructor cancels all tasks and waits for the running one to end. A task that cannot
/// finish because memory or threads are missing counts as done, with a failure text.
class Worker : public QObject {
    Q_OBJECT

public:
    /// A task. Construct and destroy it on the user-interface thread.
    class Task {
    public:
        Task();
        virtual ~Task();
        Task(Task const&) = delete;
        Task& operator=(Task const&) = delete;

        /// Does the work, on the worker's thread. Should check `cancelled` often and return early. May report progress
        /// to `worker`. A std::bad_alloc or std::system_error that it throws ends the task and becomes its failure.
        virtual void run(Worker& worker) = 0;
        /// A sentence that says why the task could not finish; empty if it finished or was cancelled. Valid when the
        /// task is done.
        QString const& failure() const { return failure_; }

        /// Set when the result is no longer wanted. Any thread.
        std::atomic<bool> cancelled{false};

    private:
        friend class Worker;
        QString failure_;
    };
    using TaskPtr = std::shared_ptr<Task>;

    explicit Worker(QObject* parent = nullptr);
    ~Worker() override;

    /// Adds a task to the end of the queue. A task that is cancelled before its turn is not run.
    void post(TaskPtr const& task);
    /// Cancels all tasks.
    void cancel();
    /// Whether a task is waiting, running, or done but not yet taken.
    bool isBusy() const;
    /// Removes and returns the task that was done first, whether it ran or not; null if there is none. The worker no
    /// longer accesses it.
    TaskPtr takeDone();
    /// Emits progressed(). Called by tasks, on the worker's thread.
    void reportProgress() { emit progressed(); }

signals:
    /// A task is done and can be taken. Emitted on the worker's thread.
    void done();
    /// A task made progress. Emitted on the worker's thread.
    void progressed();

private:
    class Thread;
    void work();
    void run(Task& task);
    void giveUp();

    mutable std::mutex mutex_;
    std::condition_variable wakeUp_;
    std::deque<TaskPtr> waiting_;
    TaskPtr running_;
    std::deque<TaskPtr> done_;
    bool ends_ = false;
    // Started with the first task, so that a worker without tasks has no thread.
    std::unique_ptr<QThread> thread_;
};

} // namespace Fractal
