// Status reports of a worker thread. This program is built with the thread sanitizer, together with the host and the
// display. With the argument "--stay-in-delivery" a display destroys its members without calling stopNotifications()
// first: a race that must be reported.

#include <atomic>
#include <bramble/ObjectStatus.hpp>
#include <cstdio>
#include <cstring>
#include <memory>
#include <QApplication>
#include <QThread>
#include <qVinputs/basics/qVObjectStatus.hpp>
#include <sorrel/EventLoopDelivery.hpp>
#include <thread>

using namespace Kolt;

namespace {

using Status = ValuePtr;

class OnePool : public ValuePoolSource, public ValuePoolProvider {
public:
    OnePool() : pool(new ValuePool("pool")) {}
    Tessera::StrongPtr<ValuePoolProvider> getValuePoolProvider() const override {
        return Tessera::WeakPtr<ValuePoolProvider>(const_cast<OnePool*>(this)).strong();
    }
    PoolPtr getValuePool() const override { return pool; }

    PoolPtr const pool;
};

/// Works like the display, but its destructor does not call stopNotifications().
class StayingDisplay : public VInputValue<VObjectStatus> {
public:
    StayingDisplay(ParameterPtr const& parameter, ValuePoolSource* poolSource)
        : VInputValue<VObjectStatus>(parameter, poolSource) {
        activateNotification();
    }
    void onValueChange(ValuePtr const& newValue, VContext const&, ValueMap const* properties) override {
        take(newValue, properties);
    }
};

ParameterPtr makeStatus(VParameter::Values values) {
    return ParameterPtr(new VParameter("object.status", makeValue(VObjectStatus("idle")), values));
}

std::unique_ptr<qVObjectStatus> show(ParameterPtr const& parameter, OnePool& pools) {
    return std::make_unique<qVObjectStatus>(parameter, nullptr, &pools, nullptr);
}

/// Reports as a worker does: stores the status, then notifies.
void report(ParameterPtr const& parameter, PoolPtr const& pool, Status const& value, std::string const& text) {
    static_cast<VTypedValueBase<VObjectStatus>&>(*value).set(VObjectStatus(text));
    parameter->notifyValueChange(value, pool, std::string(), nullptr, nullptr, nullptr);
}

template <typename Condition>
bool waitUntil(Condition const& condition) {
    for (int round = 0; round < 10'000 && !condition(); ++round) {
        QCoreApplication::processEvents();
        QThread::usleep(100);
    }
    return condition();
}

bool expect(bool holds, char const* sentence) {
    if (!holds)
        std::printf("It does not hold that %s.\n", sentence);
    return holds;
}

bool showsTheLastOfTwoQuickReports(OnePool& pools, VParameter::Values values) {
    auto const parameter = makeStatus(values);
    auto const value = parameter->getLocalValue(pools.pool, std::string(), true);
    auto const display = show(parameter, pools);
    std::thread worker([&] {
        report(parameter, pools.pool, value, "first");
        report(parameter, pools.pool, value, "second");
    });
    worker.join();
    bool const queued = expect(display->text() == QLatin1String("idle"), "the label changes on its own thread alone");
    return queued &&
           expect(waitUntil([&] { return display->text() == QLatin1String("second"); }), "the last report is shown");
}

bool reportsMeetDisplaysThatComeAndGo(OnePool& pools, VParameter::Values values) {
    auto const parameter = makeStatus(values);
    auto const value = parameter->getLocalValue(pools.pool, std::string(), true);
    std::atomic<bool> stop{false};
    std::atomic<int> count{0};
    std::thread worker([&] {
        for (int n = 0; !stop; ++n) {
            report(parameter, pools.pool, value, "report " + std::to_string(n));
            count = n;
        }
    });
    bool changed = true;
    for (int round = 0; round < 100; ++round) {
        auto const display = show(parameter, pools);
        int const before = count;
        changed = changed && waitUntil([&] { return count > before + 1; });
        if (round % 2 == 0)
            QCoreApplication::processEvents();
    }
    stop = true;
    worker.join();
    return expect(changed, "the worker goes on");
}

/// The front end passes values to a display directly while a worker reports.
bool reportsMeetTheFrontEnd(OnePool& pools) {
    auto const parameter = makeStatus(VParameter::Values::Shared);
    auto const value = parameter->ownValue();
    auto const display = show(parameter, pools);
    std::atomic<bool> finished{false};
    std::thread worker([&] {
        for (int n = 0; n < 500; ++n)
            report(parameter, pools.pool, value, "report " + std::to_string(n));
        finished = true;
    });
    while (!finished)
        display->notify(value, VContext(pools.pool, nullptr));
    worker.join();
    return expect(waitUntil([&] { return display->text() == QLatin1String("report 499"); }), "the last report wins");
}

/// Destroys a display after the last report; only the delivery of notifications orders the two.
template <typename MakeDisplay>
void endAfterAReport(OnePool& pools, MakeDisplay const& make) {
    auto const parameter = makeStatus(VParameter::Values::Shared);
    auto const value = parameter->ownValue();
    auto display = make(parameter, pools);
    std::atomic<bool> reported{false};
    std::atomic<bool> ended{false};
    std::thread worker([&] {
        report(parameter, pools.pool, value, "a report that is longer than what a string keeps in itself");
        reported.store(true, std::memory_order_relaxed);
        while (!ended.load(std::memory_order_relaxed))
            std::this_thread::yield();
    });
    while (!reported.load(std::memory_order_relaxed))
        std::this_thread::yield();
    display.reset();
    ended.store(true, std::memory_order_relaxed);
    worker.join();
}

bool reportsHold(OnePool& pools) {
    endAfterAReport(pools, show);
    bool held = true;
    for (auto const values : {VParameter::Values::Shared, VParameter::Values::PerPool}) {
        held = showsTheLastOfTwoQuickReports(pools, values) && held;
        held = reportsMeetDisplaysThatComeAndGo(pools, values) && held;
    }
    return held;
}

} // namespace

int main(int argc, char** argv) {
    QApplication const application(argc, argv);
    OnePool pools;
    if (argc > 1 && std::strcmp(argv[1], "--stay-in-delivery") == 0) {
        endAfterAReport(pools, [](auto const& parameter, auto& source) {
            return std::make_unique<StayingDisplay>(parameter, &source);
        });
        return 0;
    }
    // First the workers notify the display directly, then the event loop does.
    bool held = reportsHold(pools);
    EventLoopDelivery::install();
    held = reportsHold(pools) && held;
    held = reportsMeetTheFrontEnd(pools) && held;
    return held ? 0 : 1;
}
