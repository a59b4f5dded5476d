#include "host/lattice/Recorder.hpp"
#include "support/TaloTest.hpp"

#include <atomic>
#include <chrono>
#include <future>
#include <lattice/Parameter.hpp>
#include <thread>

namespace {

using namespace std::chrono_literals;

using Kolt::makeValue;
using Kolt::ParameterPtr;
using Kolt::ValueNotifier;
using Kolt::ValuePtr;
using Kolt::VParameter;

void set(ParameterPtr const& parameter, int number) {
    EXPECT_TRUE(setParameterValue(*parameter, number, nullptr, "", false, {}, nullptr));
}

/// Calls a function at each notification.
struct Calling : ValueNotifier {
    explicit Calling(std::function<void(int)> reaction) : function(std::move(reaction)) {}
    ~Calling() override { stopNotifications(); }
    void onValueChange(ValuePtr const& value, Kolt::VContext const&, Kolt::ValueMap const*) override {
        function(Kolt::valueOr(value, -1));
    }
    std::function<void(int)> const function;
};

class Notifications : public TaloTest {
protected:
    static ParameterPtr numbered(char const* name) { return ParameterPtr(new VParameter(name, makeValue(0))); }

    /// A notifier waits here until another thread has arrived, at most two seconds.
    struct Meeting {
        void come() {
            if (++arrived == 2)
                met.set_value();
            waited.wait_for(2s);
        }
        std::atomic<int> arrived{0};
        std::promise<void> met;
        std::shared_future<void> const waited = met.get_future().share();
    };

    ParameterPtr const first_ = numbered("first");
    ParameterPtr const second_ = numbered("second");
};

TEST_F(Notifications, OfTwoWorkersThatNotifyEachOthersParameterDoNotBlock) {
    Meeting meeting;
    std::atomic<int> firstSeen{0};
    std::atomic<int> secondSeen{0};
    // Each worker is inside one notifier when it notifies the other one.
    Calling first([&](int number) {
        firstSeen = number;
        if (number == 1) {
            meeting.come();
            set(second_, 10);
        }
    });
    Calling second([&](int number) {
        secondSeen = number;
        if (number == 1) {
            meeting.come();
            set(first_, 10);
        }
    });
    first_->addNotifier(Tessera::WeakPtr<ValueNotifier>(&first));
    second_->addNotifier(Tessera::WeakPtr<ValueNotifier>(&second));
    std::thread one([&] { set(first_, 1); });
    std::thread other([&] { set(second_, 1); });
    one.join();
    other.join();
    EXPECT_EQ(firstSeen, 10) << "what was reported meanwhile follows";
    EXPECT_EQ(secondSeen, 10);
}

TEST_F(Notifications, ToOneNotifierExcludeEachOther) {
    std::atomic<int> inside{0};
    std::atomic<int> together{0};
    int last = 0; // guarded only by the exclusion
    Calling notifier([&](int number) {
        if (++inside > 1)
            ++together;
        last = number;
        std::this_thread::yield();
        --inside;
    });
    first_->addNotifier(Tessera::WeakPtr<ValueNotifier>(&notifier));
    second_->addNotifier(Tessera::WeakPtr<ValueNotifier>(&notifier));
    auto const work = [&](ParameterPtr const& parameter) {
        for (int number = 1; number <= 2000; ++number)
            set(parameter, number);
    };
    std::thread one([&] { work(first_); });
    std::thread other([&] { work(second_); });
    one.join();
    other.join();
    EXPECT_EQ(together, 0);
    EXPECT_EQ(last, 2000);
}

TEST_F(Notifications, ThatComeWhileTheNotifierIsBusyAreDeliveredByTheThreadInIt) {
    std::promise<void> entered;
    std::promise<void> reported;
    std::vector<int> seen;
    std::vector<std::thread::id> threads;
    Calling notifier([&](int number) {
        seen.push_back(number);
        threads.push_back(std::this_thread::get_id());
        if (seen.size() == 1) {
            entered.set_value();
            reported.get_future().wait_for(5s);
        }
    });
    first_->addNotifier(Tessera::WeakPtr<ValueNotifier>(&notifier));
    second_->addNotifier(Tessera::WeakPtr<ValueNotifier>(&notifier));
    std::thread busy([&] { set(first_, 1); });
    auto const busyId = busy.get_id();
    entered.get_future().wait();
    set(second_, 2);
    set(second_, 3);
    first_->setProperty("min", makeValue(0), nullptr, nullptr, nullptr);
    reported.set_value();
    busy.join();
    EXPECT_THAT(seen, testing::ElementsAre(1, 3, 1))
        << "a newer report takes the place of an older one, of its parameter";
    EXPECT_THAT(threads, testing::Each(busyId));
}

TEST_F(Notifications, MayBeNested) {
    std::vector<int> seen;
    Calling notifier([&](int number) {
        seen.push_back(number);
        if (number < 3)
            set(first_, number + 1);
        seen.push_back(-number);
    });
    first_->addNotifier(Tessera::WeakPtr<ValueNotifier>(&notifier));
    set(first_, 1);
    EXPECT_THAT(seen, testing::ElementsAre(1, 2, 3, -3, -2, -1));
}

TEST_F(Notifications, ANotifierIsNotifiedAloneAsByAList) {
    Recorder recorder;
    auto const value = makeValue(7);
    auto const pool = Kolt::PoolPtr(new Kolt::ValuePool("pool"));
    recorder.notify(value, Kolt::VContext(pool, nullptr));
    EXPECT_EQ(recorder.count, 1);
    EXPECT_EQ(recorder.value, value);
    EXPECT_EQ(recorder.pool, pool);
    EXPECT_EQ(recorder.properties, nullptr);
}

} // namespace
