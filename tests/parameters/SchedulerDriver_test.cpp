#include "support/TaloTest.hpp"

#include <lattice/Scheduler.hpp>
#include <parameters/SchedulerDriver.hpp>

using SchedulerDriverTest = TaloTest;

namespace {

struct Worker : Kolt::VObject {
    Worker() : VObject("worker") {}
    void run(Kolt::PoolPtr const&) override {
        ++runs;
        ranAt = Kolt::VScheduler::clock();
    }
    int runs = 0;
    double ranAt = 0;
};

} // namespace

TEST_F(SchedulerDriverTest, RunsWhatIsDueFromTheEventLoop) {
    Talo::SchedulerDriver const driver;
    Tessera::StrongPtr<Worker, Kolt::VManagedObjectBase> const worker(new Worker);
    Kolt::VScheduler::schedule(worker, 0, nullptr);
    Kolt::VScheduler::schedule(worker, 0, nullptr);
    EXPECT_EQ(worker->runs, 0);
    EXPECT_TRUE(waitUntil([&] { return worker->runs == 2; }));
    EXPECT_EQ(Kolt::VScheduler::waiting(), 0);
}

TEST_F(SchedulerDriverTest, WaitsForWhatIsDueLater) {
    Talo::SchedulerDriver const driver;
    Tessera::StrongPtr<Worker, Kolt::VManagedObjectBase> const late(new Worker);
    Tessera::StrongPtr<Worker, Kolt::VManagedObjectBase> const soon(new Worker);
    double const due = Kolt::VScheduler::clock() + 0.05;
    Kolt::VScheduler::schedule(late, due, nullptr);
    Kolt::VScheduler::schedule(soon, 0, nullptr);
    EXPECT_TRUE(waitUntil([&] { return late->runs == 1; }));
    EXPECT_GE(late->ranAt, due);
    EXPECT_LE(soon->ranAt, late->ranAt);
}

TEST_F(SchedulerDriverTest, FindsWhatWaitedBeforeIt) {
    Tessera::StrongPtr<Worker, Kolt::VManagedObjectBase> const worker(new Worker);
    Kolt::VScheduler::schedule(worker, 0, nullptr);
    Talo::SchedulerDriver const driver;
    EXPECT_TRUE(waitUntil([&] { return worker->runs == 1; }));
}
