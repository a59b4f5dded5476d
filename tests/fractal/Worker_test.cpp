#include "support/RealFunction.hpp"
#include "support/TaloTest.hpp"

#include <cerrno>
#include <fractal/engine/Worker.hpp>
#include <new>
#include <pthread.h>
#include <QTimer>
#include <system_error>
#include <thread>

using Fractal::Worker;

#ifdef TALO_REFUSES_THREADS
namespace {

/// Whether the system gives threads.
bool systemHasThreads = true;

} // namespace

/// Stands before the function of the system, for all libraries of the program: how many threads a system has cannot be
/// limited from here in the same way everywhere. The names of the parameters are reserved ones in the headers of the
/// system.
// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
extern "C" int pthread_create(pthread_t* thread, pthread_attr_t const* attributes, void* (*start)(void*),
                              void* argument) noexcept {
    static auto* const create = real(&pthread_create, "pthread_create");
    return systemHasThreads ? create(thread, attributes, start, argument) : EAGAIN;
}
#endif

namespace {

/// Checks that it runs on another thread. One that is held works until it is cancelled.
class Task : public Worker::Task {
public:
    explicit Task(bool held = false) : held_(held) {}
    ~Task() override { EXPECT_EQ(std::this_thread::get_id(), madeOn_); }

    void run(Worker& worker) override {
        EXPECT_NE(std::this_thread::get_id(), madeOn_);
        started = true;
        worker.reportProgress();
        while (held_ && !cancelled)
            std::this_thread::yield();
        result = 42;
    }

    std::atomic<bool> started{false};
    // Only read after the task was taken.
    int result = 0;

private:
    bool const held_;
    std::thread::id const madeOn_ = std::this_thread::get_id();
};

class WorkerTest : public TaloTest {
protected:
    WorkerTest() {
        QObject::connect(&worker, &Worker::done, &worker, [this] {
            while (auto const task = worker.takeDone())
                taken.push_back(task);
        });
        QObject::connect(&worker, &Worker::progressed, &worker, [this] { ++progress; });
    }

    Worker worker;
    std::vector<Worker::TaskPtr> taken;
    int progress = 0;
};

} // namespace

TEST_F(WorkerTest, DoesTasksInTheirOrderOnAnotherThread) {
    std::vector<Worker::TaskPtr> posted;
    for (int count = 0; count < 20; ++count) {
        posted.push_back(std::make_shared<Task>());
        worker.post(posted.back());
    }
    EXPECT_TRUE(worker.isBusy());
    EXPECT_TRUE(waitUntil([&] { return taken.size() == 20; }));
    EXPECT_EQ(taken, posted);
    for (auto const& task : taken)
        EXPECT_EQ(static_cast<Task const&>(*task).result, 42);
    // The progress signals of the last tasks may still be queued.
    EXPECT_TRUE(waitUntil([&] { return progress == 20; }));
    EXPECT_FALSE(worker.isBusy());
    EXPECT_EQ(worker.takeDone(), nullptr);
}

TEST_F(WorkerTest, CancelsTheRunningTaskAndThoseThatWait) {
    auto const running = std::make_shared<Task>(true);
    auto const waiting = std::make_shared<Task>();
    worker.post(running);
    worker.post(waiting);
    EXPECT_TRUE(waitUntil([&] { return running->started.load(); }));
    worker.cancel();
    EXPECT_TRUE(waitUntil([&] { return taken.size() == 2; }));
    EXPECT_EQ(running->result, 42);
    EXPECT_FALSE(waiting->started);
    // Tasks that are posted afterwards run.
    worker.post(std::make_shared<Task>());
    EXPECT_TRUE(waitUntil([&] { return taken.size() == 3; }));
    EXPECT_EQ(static_cast<Task const&>(*taken[2]).result, 42);
}

TEST_F(WorkerTest, EndsWhileATaskRuns) {
    auto other = std::make_unique<Worker>();
    auto const running = std::make_shared<Task>(true);
    other->post(running);
    other->post(std::make_shared<Task>());
    EXPECT_TRUE(waitUntil([&] { return running->started.load(); }));
    other.reset();
    EXPECT_TRUE(running->cancelled);
    EXPECT_EQ(running->result, 42);
}

TEST_F(WorkerTest, EndsWithoutEverHavingWorked) {
    Worker const idle;
    EXPECT_FALSE(idle.isBusy());
}

namespace {

/// A task that calls a function.
class Doing : public Worker::Task {
public:
    explicit Doing(std::function<void()> work) : work_(std::move(work)) {}
    void run(Worker&) override { work_(); }

private:
    std::function<void()> const work_;
};

} // namespace

TEST_F(WorkerTest, TasksMayUseTimersOfQtAsPaintingDoes) {
    // Qt warns on threads that cannot have timers.
    worker.post(std::make_shared<Doing>([] {
        QTimer timer;
        timer.start(1);
    }));
    EXPECT_TRUE(waitUntil([&] { return taken.size() == 1; }));
}

TEST_F(WorkerTest, ATaskWithoutMemoryOrThreadsIsDoneWithAReason) {
    worker.post(std::make_shared<Doing>([] { throw std::bad_alloc(); }));
    worker.post(std::make_shared<Doing>([] { throw std::system_error(EAGAIN, std::generic_category()); }));
    worker.post(std::make_shared<Task>());
    EXPECT_TRUE(waitUntil([&] { return taken.size() == 3; }));
    EXPECT_EQ(taken[0]->failure(), QStringLiteral("There is not enough memory."));
    EXPECT_THAT(taken[1]->failure().toStdString(), testing::StartsWith("The system refuses: "));
    EXPECT_EQ(taken[2]->failure(), QString());
    EXPECT_EQ(static_cast<Task const&>(*taken[2]).result, 42);
}

#ifdef TALO_REFUSES_THREADS
TEST_F(WorkerTest, WithoutAThreadTasksAreDoneWithAReason) {
    expectQtWarning("Thread creation error");
    systemHasThreads = false;
    worker.post(std::make_shared<Task>());
    systemHasThreads = true;
    EXPECT_TRUE(taken.empty());
    EXPECT_TRUE(waitUntil([&] { return taken.size() == 1; }));
    EXPECT_EQ(taken[0]->failure(), QStringLiteral("The system has no thread for it."));
    worker.post(std::make_shared<Task>());
    EXPECT_TRUE(waitUntil([&] { return taken.size() == 2; })) << "it tries again";
    EXPECT_EQ(taken[1]->failure(), QString());
}
#endif
