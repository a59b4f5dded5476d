#include "TaloTest.hpp"
#include "VirtualTime.hpp"

#include <chrono>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <thread>

using testing::ElementsAre;
using testing::Ge;
using testing::Lt;

namespace {

using RealClock = std::chrono::system_clock;

class VirtualTimeTest : public TaloTest {
protected:
    static int minutes(int count) { return count * 60000; }

    static qint64 realMilliseconds(RealClock::time_point since) {
        return std::chrono::duration_cast<std::chrono::milliseconds>(RealClock::now() - since).count();
    }

    RealClock::time_point const start = RealClock::now();
};

} // namespace

TEST_F(VirtualTimeTest, TimersOfHoursFireAtOnceInTheOrderOfTheirTimes) {
    VirtualTime const time;
    std::vector<int> fired;
    QEventLoop loop;
    QTimer::singleShot(minutes(180), &loop, [&] {
        fired.push_back(180);
        loop.quit();
    });
    QTimer::singleShot(minutes(120), &loop, [&] { fired.push_back(120); });
    loop.exec();
    EXPECT_THAT(fired, ElementsAre(120, 180));
    EXPECT_THAT(realMilliseconds(start), Lt(minutes(1)));
}

TEST_F(VirtualTimeTest, TheClockStandsWhileNothingWaits) {
    VirtualTime const time;
    QElapsedTimer timer;
    timer.start();
    while (realMilliseconds(start) < 20)
        std::this_thread::yield();
    EXPECT_EQ(timer.elapsed(), 0);
    VirtualTime::advance(70);
    EXPECT_EQ(timer.elapsed(), 70);
}

TEST_F(VirtualTimeTest, ASleepTakesItsRealTimeAndAWaitForThreadsNoneOnTheClock) {
    VirtualTime const time;
    QElapsedTimer timer;
    timer.start();
    QThread::msleep(20);
    EXPECT_EQ(timer.elapsed(), 20);
    EXPECT_THAT(realMilliseconds(start), Ge(20));
    VirtualTime::waitForThreads(20);
    EXPECT_EQ(timer.elapsed(), 20);
    EXPECT_THAT(realMilliseconds(start), Ge(40));
}

TEST_F(VirtualTimeTest, AnotherThreadHasRealTime) {
    VirtualTime const time;
    VirtualTime::advance(minutes(5));
    qint64 elapsed = 0;
    std::thread([&] {
        QElapsedTimer timer;
        timer.start();
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        elapsed = timer.elapsed();
    }).join();
    EXPECT_THAT(elapsed, Ge(20));
    EXPECT_THAT(elapsed, Lt(minutes(5)));
}

TEST_F(VirtualTimeTest, AfterwardsTheClockGoesOn) {
    QElapsedTimer timer;
    timer.start();
    {
        VirtualTime const time;
        VirtualTime::advance(minutes(5));
        EXPECT_TRUE(VirtualTime::isRunning());
    }
    EXPECT_FALSE(VirtualTime::isRunning());
    auto const before = timer.elapsed();
    EXPECT_THAT(before, Ge(minutes(5)));
    QThread::msleep(20);
    EXPECT_THAT(timer.elapsed(), Ge(before + 20));
}
