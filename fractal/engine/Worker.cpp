#include <fractal/engine/Worker.hpp>

#include <algorithm>
#include <new>
#include <system_error>
#include <utility>

namespace Fractal {

Worker::Task::Task() = default;

Worker::Task::~Task() = default;

/// A QThread, not a std::thread: painting sometimes starts Qt timers, which need one.
class Worker::Thread : public QThread {
public:
    explicit Thread(Worker& worker) : worker_(worker) {}
    void run() override { worker_.work(); }

private:
    Worker& worker_;
};

Worker::Worker(QObject* parent) : QObject(parent) {}

Worker::~Worker() {
    cancel();
    {
        std::lock_guard const lock(mutex_);
        ends_ = true;
    }
    wakeUp_.notify_all();
    if (thread_)
        thread_->wait();
}

void Worker::post(TaskPtr const& task) {
    {
        std::lock_guard const lock(mutex_);
        waiting_.push_back(task);
    }
    wakeUp_.notify_all();
    if (thread_)
        return;
    thread_ = std::make_unique<Thread>(*this);
    thread_->start();
    // The system has no thread left. Try again with the next task.
    if (!thread_->isRunning()) {
        thread_.reset();
        giveUp();
    }
}

void Worker::cancel() {
    std::lock_guard const lock(mutex_);
    for (auto const& task : waiting_)
        task->cancelled = true;
    if (running_)
        running_->cancelled = true;
}

bool Worker::isBusy() const {
    std::lock_guard const lock(mutex_);
    return !waiting_.empty() || running_ || !done_.empty();
}

Worker::TaskPtr Worker::takeDone() {
    std::lock_guard const lock(mutex_);
    if (done_.empty())
        return nullptr;
    auto const task = done_.front();
    done_.pop_front();
    return task;
}

void Worker::work() {
    std::unique_lock lock(mutex_);
    for (;;) {
        wakeUp_.wait(lock, [this] { return ends_ || !waiting_.empty(); });
        if (ends_)
            return;
        running_ = std::move(waiting_.front());
        waiting_.pop_front();
        // Keep only a reference: a task must not be destroyed on this thread.
        auto& task = *running_;
        lock.unlock();
        if (!task.cancelled)
            run(task);
        lock.lock();
        done_.push_back(std::exchange(running_, nullptr));
        lock.unlock();
        emit done();
        lock.lock();
    }
}

void Worker::run(Task& task) {
    try {
        task.run(*this);
    } catch (std::bad_alloc const&) {
        task.failure_ = tr("There is not enough memory.");
    } catch (std::system_error const& error) {
        task.failure_ = tr("The system refuses: %1.").arg(QString::fromLocal8Bit(error.what()));
    }
}

void Worker::giveUp() {
    int count = 0;
    {
        std::lock_guard const lock(mutex_);
        for (auto const& task : waiting_)
            task->failure_ = tr("The system has no thread for it.");
        count = static_cast<int>(waiting_.size());
        std::move(waiting_.begin(), waiting_.end(), std::back_inserter(done_));
        waiting_.clear();
    }
    // Queued, as if a thread had emitted it, so that post() returns before done() arrives.
    for (int each = 0; each < count; ++each)
        QMetaObject::invokeMethod(this, &Worker::done, Qt::QueuedConnection);
}

} // namespace Fractal
