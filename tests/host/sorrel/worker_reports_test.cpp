#include "support/TestHost.hpp"

#include <atomic>
#include <bramble/ObjectStatus.hpp>
#include <ctime>
#include <malloc.h>
#include <QLabel>
#include <QTimer>
#include <thread>

namespace {

using Kolt::makeValue;
using Kolt::ParameterPtr;
using Kolt::ValuePtr;
using Kolt::VObjectStatus;
using Values = Kolt::VParameter::Values;

/// The processor time of this thread in milliseconds, which other programs on the machine do not affect.
qint64 computed() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return time.tv_sec * 1000 + time.tv_nsec / 1'000'000;
}

/// Measures the longest processor time of this thread between two ticks of the event loop, and the growth of its
/// memory.
class LoopWatch {
public:
    LoopWatch() {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { tick(); });
        timer_.start(5);
    }
    qint64 longest() const { return longest_; }
    std::size_t grown() const { return mostMemory_ - startMemory_; }

private:
    void tick() {
        auto const now = computed();
        longest_ = qMax(longest_, now - std::exchange(last_, now));
        mostMemory_ = std::max(mostMemory_, mallinfo2().uordblks);
    }

    QTimer timer_;
    qint64 longest_ = 0;
    qint64 last_ = computed();
    std::size_t const startMemory_ = mallinfo2().uordblks;
    std::size_t mostMemory_ = startMemory_;
};

/// A status display of the plug-in in a small host, and worker threads that report to it.
class WorkerReports : public PluginTest {
protected:
    ParameterPtr status(Values values = Values::Shared) {
        auto const parameter = makeParameter("object.status", makeValue(VObjectStatus("idle")), {}, values);
        for (auto const& pool : {firstPool, secondPool})
            parameter->getLocalValue(pool, "", true);
        return parameter;
    }
    QLabel& display(ParameterPtr const& parameter) {
        editor = open(parameter);
        return dynamic_cast<QLabel&>(*editor.widget);
    }
    static void report(ParameterPtr const& parameter, Kolt::PoolPtr const& pool, ValuePtr const& value,
                       std::string const& text) {
        EXPECT_TRUE(Kolt::typedValue<VObjectStatus>(value.get())->set(VObjectStatus(text)));
        parameter->notifyValueChange(value, pool, "", nullptr, nullptr, nullptr);
    }
    static void reportOnWorker(ParameterPtr const& parameter, Kolt::PoolPtr const& pool, std::string const& text) {
        auto const value = parameter->getLocalValue(pool, "", true);
        std::thread([&] { report(parameter, pool, value, text); }).join();
    }

    Kolt::Editor editor;
};

TEST_F(WorkerReports, AreShownByTheEventLoop) {
    auto const parameter = status();
    auto const& label = display(parameter);
    reportOnWorker(parameter, firstPool, "first");
    reportOnWorker(parameter, firstPool, "second");
    EXPECT_EQ(label.text(), "idle");
    EXPECT_TRUE(waitUntil([&] { return label.text() == "second"; }));
}

TEST_F(WorkerReports, DoNotReplaceANewerTextOfTheUserInterface) {
    auto const parameter = status();
    auto const& label = display(parameter);
    reportOnWorker(parameter, firstPool, "older");
    report(parameter, firstPool, parameter->ownValue(), "newer");
    EXPECT_EQ(label.text(), "newer");
    QTest::qWait(100);
    EXPECT_EQ(label.text(), "newer");
}

TEST_F(WorkerReports, OfAPoolDoNotReplaceTheTextOfAnother) {
    auto const parameter = status(Values::PerPool);
    auto const& label = display(parameter);
    reportOnWorker(parameter, firstPool, "of the first pool");
    pools.use(secondPool);
    Kolt::showPoolValue(editor, parameter, &pools);
    report(parameter, secondPool, parameter->getLocalValue(secondPool, "", true), "of the second pool");
    QTest::qWait(100);
    EXPECT_EQ(label.text(), "of the second pool");
    pools.use(firstPool);
    Kolt::showPoolValue(editor, parameter, &pools);
    EXPECT_EQ(label.text(), "of the first pool");
}

TEST_F(WorkerReports, WithoutPauseLeaveTheEventLoopFreeAndTheMemoryAsItIs) {
    auto const parameter = status();
    auto const& label = display(parameter);
    auto const value = parameter->ownValue();
    std::string const longText(2000, 'x');
    std::atomic<bool> stop{false};
    std::atomic<int> count{0};
    std::thread worker([&] {
        while (!stop)
            report(parameter, firstPool, value, std::to_string(++count) + ' ' + longText);
    });
    LoopWatch const watch;
    QSet<QString> shown;
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < 5000) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        shown << label.text().left(12);
    }
    stop = true;
    worker.join();
    EXPECT_LT(watch.longest(), 50) << "milliseconds without the event loop";
    EXPECT_LT(watch.grown(), 8U << 20) << "bytes for " << count << " reports";
    EXPECT_GT(count, 1000);
    EXPECT_GT(shown.size(), 10) << "the texts are shown meanwhile";
    auto const last = QString::number(count) + QLatin1Char(' ') + QString::fromStdString(longText);
    EXPECT_TRUE(waitUntil([&] { return label.text() == last; }));
}

TEST_F(WorkerReports, ReachEveryNotifierOnTheUserInterfaceThread) {
    auto const parameter = status();
    display(parameter);
    RecordingNotifier notifier;
    std::thread::id notified;
    notifier.reaction = [&] { notified = std::this_thread::get_id(); };
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&notifier));
    reportOnWorker(parameter, firstPool, "text");
    EXPECT_TRUE(waitUntil([&] { return !notifier.values.empty(); }));
    EXPECT_EQ(notified, std::this_thread::get_id());
}

} // namespace
