#include "host/lattice/Recorder.hpp"
#include "support/TaloTest.hpp"

#include <atomic>
#include <lattice/NotificationThread.hpp>
#include <lattice/Parameter.hpp>
#include <tessera/NoDestructor.hpp>
#include <thread>

namespace {

using namespace std::chrono_literals;

using Kolt::makeValue;
using Kolt::NotificationThread;
using Kolt::ParameterPtr;
using Kolt::PoolPtr;
using Kolt::ValueNotifier;
using Kolt::valueOr;
using Kolt::ValuePool;
using Kolt::ValuePtr;
using Kolt::VParameter;

struct CountingThread : NotificationThread {
    void wake() override { ++wakes; }
    std::atomic<int> wakes{0};
};

CountingThread& thread() {
    static Tessera::NoDestructor<CountingThread> thread;
    return *thread;
}

/// Records the content and the thread of each notification.
struct Seeing : ValueNotifier {
    ~Seeing() override { stopNotifications(); }
    void onValueChange(ValuePtr const& value, Kolt::VContext const& context,
                       Kolt::ValueMap const* properties) override {
        numbers.push_back(valueOr(value, -1));
        pools.push_back(context.pool());
        propertyCounts.push_back(properties ? std::distance(properties->begin(), properties->end()) : 0);
        threads.push_back(std::this_thread::get_id());
    }
    std::vector<int> numbers;
    std::vector<PoolPtr> pools;
    std::vector<std::ptrdiff_t> propertyCounts;
    std::vector<std::thread::id> threads;
};

class NotificationThreads : public TaloTest {
protected:
    NotificationThreads() {
        thread().wakes = 0;
        NotificationThread::install(&thread());
        parameter_->addNotifier(Tessera::WeakPtr<ValueNotifier>(&notifier_));
    }
    ~NotificationThreads() override { NotificationThread::install(nullptr); }

    void set(int number, PoolPtr const& pool = nullptr, ParameterPtr const& parameter = nullptr) {
        auto const& changed = parameter ? parameter : parameter_;
        EXPECT_TRUE(setParameterValue(*changed, number, pool, "", true, {}, nullptr));
    }
    template <typename Work>
    static void onWorker(Work const& work) {
        std::thread(work).join();
    }
    static bool deliver() { return NotificationThread::deliverWaiting(1s); }

    ParameterPtr const parameter_{new VParameter("number", makeValue(0))};
    Seeing notifier_;
};

TEST_F(NotificationThreads, DeliverWhatWorkersReport) {
    onWorker([&] { set(1); });
    EXPECT_THAT(notifier_.numbers, testing::IsEmpty()) << "the worker itself delivers nothing";
    EXPECT_EQ(thread().wakes, 1);
    EXPECT_FALSE(deliver());
    EXPECT_THAT(notifier_.numbers, testing::ElementsAre(1));
    EXPECT_THAT(notifier_.threads, testing::Each(std::this_thread::get_id()));
    EXPECT_FALSE(deliver());
    EXPECT_THAT(notifier_.numbers, testing::SizeIs(1));
}

TEST_F(NotificationThreads, DeliverTheirOwnReportsAtOnce) {
    set(1);
    EXPECT_THAT(notifier_.numbers, testing::ElementsAre(1));
    EXPECT_EQ(thread().wakes, 0);
}

TEST_F(NotificationThreads, DeliverTheNewestOfManyReports) {
    onWorker([&] {
        for (int number = 1; number <= 1000; ++number)
            set(number);
    });
    deliver();
    EXPECT_THAT(notifier_.numbers, testing::ElementsAre(1000));
    EXPECT_EQ(thread().wakes, 1) << "one that is awake is not woken";
}

TEST_F(NotificationThreads, AnOlderReportThatWaitsGivesWayToANewerOneOfThisThread) {
    auto const older = makeValue(1);
    onWorker([&] { parameter_->notifyValueChange(older, nullptr, "", nullptr, nullptr, nullptr); });
    set(2);
    deliver();
    EXPECT_THAT(notifier_.numbers, testing::ElementsAre(2));
}

TEST_F(NotificationThreads, KeepAReportOfEachPool) {
    PoolPtr const draft(new ValuePool("draft"));
    PoolPtr const final(new ValuePool("final"));
    ParameterPtr const perPool(new VParameter("number", makeValue(0), VParameter::Values::PerPool));
    for (auto const& pool : {draft, final})
        perPool->getLocalValue(pool, "", true);
    perPool->addNotifier(Tessera::WeakPtr<ValueNotifier>(&notifier_));
    onWorker([&] {
        set(1, draft, perPool);
        set(2, final, perPool);
        set(3, draft, perPool);
    });
    deliver();
    EXPECT_THAT(notifier_.numbers, testing::ElementsAre(2, 3));
    EXPECT_THAT(notifier_.pools, testing::ElementsAre(final, draft));
}

TEST_F(NotificationThreads, KeepTheProperties) {
    onWorker([&] {
        Kolt::ValueMap properties;
        properties.setValue("min", makeValue(0));
        parameter_->notifyValueChange(parameter_->ownValue(), nullptr, "", nullptr, nullptr, &properties);
        set(5);
    });
    deliver();
    EXPECT_THAT(notifier_.propertyCounts, testing::ElementsAre(1, 0));
    EXPECT_THAT(notifier_.numbers, testing::ElementsAre(5, 5)) << "the value is the live one";
}

TEST_F(NotificationThreads, DeliverNothingToANotifierThatIsGone) {
    {
        Seeing brief;
        parameter_->addNotifier(Tessera::WeakPtr<ValueNotifier>(&brief));
        onWorker([&] { set(1); });
    }
    deliver();
    EXPECT_THAT(notifier_.numbers, testing::ElementsAre(1));
}

TEST_F(NotificationThreads, DeliverToOneNotifierAtLeastAndAskForMoreTime) {
    Seeing other;
    parameter_->addNotifier(Tessera::WeakPtr<ValueNotifier>(&other));
    onWorker([&] { set(1); });
    EXPECT_TRUE(NotificationThread::deliverWaiting(0s));
    EXPECT_THAT(notifier_.numbers, testing::ElementsAre(1));
    EXPECT_THAT(other.numbers, testing::IsEmpty());
    EXPECT_FALSE(NotificationThread::deliverWaiting(0s));
    EXPECT_THAT(other.numbers, testing::ElementsAre(1));
}

TEST_F(NotificationThreads, AfterTheirRemovalLeaveReportsToTheWorker) {
    NotificationThread::install(nullptr);
    onWorker([&] { set(1); });
    EXPECT_THAT(notifier_.numbers, testing::ElementsAre(1));
    EXPECT_THAT(notifier_.threads, testing::Not(testing::Contains(std::this_thread::get_id())));
}

} // namespace
