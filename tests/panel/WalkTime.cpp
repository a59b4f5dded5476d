#include "WalkTime.hpp"

void pass(int milliseconds) {
    if (!VirtualTime::isRunning()) {
        QTest::qWait(milliseconds);
        return;
    }
    constexpr int step = 10;
    for (int passed = 0; passed < milliseconds; passed += step) {
        VirtualTime::advance(step);
        QCoreApplication::processEvents();
    }
}
