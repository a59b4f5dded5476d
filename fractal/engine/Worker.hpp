#pragma once

#include <atomic>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <QObject>
#include <QThread>

namespace Fractal {

/// Does tasks one after the other on a thread of its own, which may paint on images. Made, asked and destroyed on the
/// user-interface thread. Its destructor cancels everything and waits for the running task to end. A task that cannot
/// be run to its end, as memory or threads are lacking, is done, too, with a problem.
class Worker : public QObject {
    Q_OBJECT

public:
    /// Something to do. Made and destroyed on the user-interface thread.
    class Task {
    public:
        Task();
        virtual ~Task();
        Task(Task const&) = delete;
        Task& operator=(Task const&) = delete;

        /// The work, on the worker's thread; it looks at `cancelled` often and ends early. `worker` can be told of
        /// progress. It may throw std::bad_alloc and std::system_error, and ends with it.
        virtual void run(Worker& worker) = 0;
        /// What kept the task from being run to its end, a sentence; empty if it was, or was cancelled. To be asked
        /// when it is done.
        QString const& failure() const { return failure_; }

        /// True from the moment at which nobody wants the result any more. Any thread.
        std::atomic<bool> cancelled{false};

    private:
        friend class Worker;
        QString failure_;
    };
    using TaskPtr = std::shared_ptr<Task>;

    explicit Worker(QObject* parent = nullptr);
    ~Worker() override;

    /// Adds a task at the end; one that is cancelled before its turn comes is not run.
    void post(TaskPtr const& task);
    /// Cancels all tasks.
    void cancel();
    /// Whether a task waits, is run, or is done and was not yet taken.
    bool isBusy() const;
    /// The task that is done longest, run or not, and forgets it; null when there is none. What it made is complete.
    TaskPtr takeDone();
    /// Tells of progress. Called by tasks, on the worker's thread.
    void reportProgress() { emit progressed(); }

signals:
    /// A task can be taken. Emitted on the worker's thread.
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
    // Started with the first task: without tasks there is no thread.
    std::unique_ptr<QThread> thread_;
};

} // namespace Fractal
