#include <fractal/engine/Worker.hpp>

#include <utility>

namespace Fractal {

Worker::Task::Task() = default;

Worker::Task::~Task() = default;

Worker::Worker(QObject* parent) : QObject(parent) {}

Worker::~Worker() {
    cancel();
    {
        std::lock_guard const lock(mutex_);
        ends_ = true;
    }
    wakeUp_.notify_all();
    if (thread_.joinable())
        thread_.join();
}

void Worker::post(TaskPtr const& task) {
    {
        std::lock_guard const lock(mutex_);
        waiting_.push_back(task);
    }
    wakeUp_.notify_all();
    if (!thread_.joinable())
        thread_ = std::thread([this] { work(); });
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
        // The queues alone own the tasks, so that none is destroyed on this thread.
        auto& task = *running_;
        lock.unlock();
        if (!task.cancelled)
            task.run(*this);
        lock.lock();
        done_.push_back(std::exchange(running_, nullptr));
        lock.unlock();
        emit done();
        lock.lock();
    }
}

} // namespace Fractal
