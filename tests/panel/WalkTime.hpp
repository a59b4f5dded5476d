#pragma once

#include "support/VirtualTime.hpp"
#include <QCoreApplication>
#include <QTest>

// The time of a walk. It counts in events where time is virtual (VirtualTime); on a display it is real.

/// Lets time pass, in steps of some milliseconds, and handles what comes.
void pass(int milliseconds);

/// Waits for what usually happens at once, and is no failure if it does not.
template <typename Condition>
bool waitSoon(Condition&& condition, int milliseconds = 1000) {
    constexpr int step = 10;
    for (int passed = 0; passed < milliseconds; passed += step) {
        if (condition())
            return true;
        pass(step);
    }
    return condition();
}
