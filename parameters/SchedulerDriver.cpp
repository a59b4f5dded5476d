#include <parameters/SchedulerDriver.hpp>

#include <cmath>
#include <lattice/Scheduler.hpp>

namespace Talo {

namespace {

// A timer cannot wait longer than its interval can be written; it then waits again. In milliseconds.
constexpr double longestWait = 86'400'000;

} // namespace

SchedulerDriver::SchedulerDriver(QObject* parent) : QObject(parent) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &SchedulerDriver::run);
    Kolt::VScheduler::setWakeUp([this] { wait(); });
    wait();
}

SchedulerDriver::~SchedulerDriver() {
    Kolt::VScheduler::setWakeUp({});
}

void SchedulerDriver::wait() {
    double const next = Kolt::VScheduler::nextTime();
    if (next < 0) {
        timer_.stop();
        return;
    }
    double const milliseconds = std::ceil((next - Kolt::VScheduler::clock()) * 1000);
    timer_.start(static_cast<int>(qBound(0.0, milliseconds, longestWait)));
}

void SchedulerDriver::run() {
    Kolt::VScheduler::runDue();
    wait();
}

} // namespace Talo
