#include "host/lattice/Recorder.hpp"
#include "support/TaloTest.hpp"
#include <atomic>
#include <lattice/Parameter.hpp>
#include <memory>
#include <thread>

namespace {

using Kolt::makeValue;
using Kolt::ParameterPtr;
using Kolt::ValueNotifier;
using Kolt::VParameter;
using Kolt::VValue;
using Tessera::StrongPtr;

/// Calls stopNotifications() first in its destructor, so that no worker notifies a half-destroyed object.
struct Leaving : ValueNotifier {
    explicit Leaving(std::atomic<int>& deliveries) : deliveries_(deliveries), text_("alive") {}
    ~Leaving() override { stopNotifications(); }
    using ValueNotifier::stopNotifications;
    void onValueChange(StrongPtr<Kolt::VValueBase> const& value, Kolt::VContext const&,
                       Kolt::ValueMap const*) override {
        if (text_ != "alive" || !value)
            ADD_FAILURE() << "notified while it was destroyed";
        text_ = "notified";
        text_ = "alive";
        ++deliveries_;
    }
    std::atomic<int>& deliveries_;
    std::string text_;
};

/// Is half destroyed for a while, in which nothing may be called.
struct LeavingAtTheEnd : ValueNotifier {
    explicit LeavingAtTheEnd(std::atomic<int>& calls) : calls_(calls) {}
    ~LeavingAtTheEnd() override {
        stopNotifications();
        isWhole_ = false;
        std::this_thread::yield();
    }
    void onValueChange(StrongPtr<Kolt::VValueBase> const&, Kolt::VContext const&, Kolt::ValueMap const*) override {}
    void onListGone() override {
        ++calls_;
        for (int look = 0; look < 100; ++look)
            if (!isWhole_)
                ADD_FAILURE() << "called while it was destroyed";
    }
    std::atomic<int>& calls_;
    bool isWhole_ = true;
};

class NotificationByWorkers : public TaloTest {
protected:
    ParameterPtr const parameter_{new VParameter("status", makeValue(std::string("start")))};
    std::atomic<int> deliveries_{0};
};

TEST_F(NotificationByWorkers, ANotifierMayBeDestroyedWhileAWorkerNotifiesIt) {
    std::atomic<bool> stop{false};
    std::thread worker([&] {
        int round = 0;
        while (!stop)
            EXPECT_TRUE(setParameterValue(*parameter_, std::to_string(++round), nullptr, "", false, {}, nullptr));
    });
    for (int round = 0; round < 50; ++round) {
        auto notifier = std::make_unique<Leaving>(deliveries_);
        int const before = deliveries_;
        parameter_->addNotifier(Tessera::WeakPtr<ValueNotifier>(notifier.get()));
        // Destroy it while deliveries are certainly running.
        while (deliveries_ == before)
            std::this_thread::yield();
        notifier.reset();
    }
    stop = true;
    worker.join();
    EXPECT_GE(deliveries_, 50);
    EXPECT_EQ(parameter_->size(), 0U);
}

TEST_F(NotificationByWorkers, NobodyIsNotifiedAfterStopping) {
    Leaving notifier(deliveries_);
    parameter_->addNotifier(Tessera::WeakPtr<ValueNotifier>(&notifier));
    std::thread([&] {
        EXPECT_TRUE(setParameterValue(*parameter_, std::string("x"), nullptr, "", false, {}, nullptr));
    }).join();
    EXPECT_EQ(deliveries_, 1);
    notifier.stopNotifications();
    std::thread([&] {
        EXPECT_TRUE(setParameterValue(*parameter_, std::string("y"), nullptr, "", false, {}, nullptr));
    }).join();
    EXPECT_EQ(deliveries_, 1);
}

TEST_F(NotificationByWorkers, ANotifierMayBeDestroyedWhileAWorkerDestroysTheParameter) {
    std::atomic<int> calls{0};
    for (int round = 0; round < 200; ++round) {
        ParameterPtr parameter(new VParameter("status", makeValue(round)));
        auto notifier = std::make_unique<LeavingAtTheEnd>(calls);
        parameter->addNotifier(Tessera::WeakPtr<ValueNotifier>(notifier.get()));
        std::atomic<bool> go{false};
        std::thread worker([&] {
            while (!go)
                ;
            parameter = nullptr;
        });
        go = true;
        // Now and then the parameter is first.
        while (round % 2 == 0 && calls == 0)
            std::this_thread::yield();
        notifier.reset();
        worker.join();
        EXPECT_LE(calls.exchange(0), 1);
    }
}

TEST_F(NotificationByWorkers, WorkersMayExtendAListThatIsBeingNotified) {
    std::thread adding([&] {
        for (int round = 0; round < 200; ++round) {
            Leaving notifier(deliveries_);
            parameter_->addNotifier(Tessera::WeakPtr<ValueNotifier>(&notifier));
            parameter_->size();
        }
    });
    for (int round = 0; round < 200; ++round)
        EXPECT_TRUE(setParameterValue(*parameter_, std::string("x"), nullptr, "", false, {}, nullptr));
    adding.join();
    EXPECT_EQ(parameter_->size(), 0U);
}

TEST_F(NotificationByWorkers, AValueIsReadWholeWhileAWorkerStoresIt) {
    VValue<std::string> value(std::string(100, 'a'));
    std::thread worker([&] {
        for (int round = 0; round < 2000; ++round)
            value.set(std::string(100, round % 2 ? 'a' : 'b'));
    });
    for (int round = 0; round < 2000; ++round) {
        std::string read;
        EXPECT_TRUE(value.get(read));
        EXPECT_EQ(read, std::string(100, read[0]));
    }
    worker.join();
}

} // namespace
