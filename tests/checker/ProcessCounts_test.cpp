#include "support/TaloTest.hpp"
#include <atomic>
#include <checker/ProcessCounts.hpp>
#include <chrono>
#include <thread>

namespace {

using Checker::threadCount;
using namespace std::chrono_literals;

using ProcessCountsTest = TaloTest;

TEST_F(ProcessCountsTest, AThreadThatIsEndingIsNotCounted) {
    auto const before = threadCount();
    std::thread([] { std::this_thread::sleep_for(100ms); }).detach();
    EXPECT_EQ(threadCount(), before);
}

TEST_F(ProcessCountsTest, AThreadThatStaysIsCounted) {
    auto const before = threadCount();
    std::atomic<bool> ends{false};
    std::thread staying([&] {
        while (!ends)
            std::this_thread::sleep_for(1ms);
    });
    EXPECT_EQ(threadCount(), before + 1);
    ends = true;
    staying.join();
    EXPECT_EQ(threadCount(), before);
}

} // namespace
