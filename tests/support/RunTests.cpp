#include "support/RunTests.hpp"

#include "support/OutputCapture.hpp"
#include <cstdio>
#include <gtest/gtest.h>

namespace {

struct BeforePrinter : testing::EmptyTestEventListener {
    void OnTestPartResult(testing::TestPartResult const&) override { OutputCapture::suspend(); }
};

struct AfterPrinter : testing::EmptyTestEventListener {
    void OnTestPartResult(testing::TestPartResult const&) override { OutputCapture::resume(); }
};

} // namespace

int runTests() {
    auto& tests = *testing::UnitTest::GetInstance();
    // GoogleTest notifies listeners of a failure in the order in which they were added, so add the printer last.
    auto& listeners = tests.listeners();
    auto* const printer = listeners.Release(listeners.default_result_printer());
    listeners.Append(new BeforePrinter);
    listeners.Append(printer);
    listeners.Append(new AfterPrinter);

    auto const status = RUN_ALL_TESTS();
    if (!testing::GTEST_FLAG(list_tests) && tests.test_to_run_count() == 0) {
        std::fputs("No test ran.\n", stderr);
        return 1;
    }
    return status;
}
