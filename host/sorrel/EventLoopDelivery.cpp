#include <sorrel/EventLoopDelivery.hpp>

#include <QCoreApplication>

namespace Kolt {

namespace {

using namespace std::chrono_literals;

// A screen shows no more.
constexpr std::chrono::milliseconds interval = 16ms;
// What is left of the interval belongs to the user.
constexpr std::chrono::milliseconds budget = 8ms;

} // namespace

EventLoopDelivery::EventLoopDelivery() = default;

EventLoopDelivery::~EventLoopDelivery() = default;

EventLoopDelivery& EventLoopDelivery::theDelivery() {
    static Tessera::NoDestructor<EventLoopDelivery> delivery;
    return *delivery;
}

void EventLoopDelivery::install() {
    if (NotificationThread::installed() || !QCoreApplication::instance())
        return;
    auto& delivery = theDelivery();
    delivery.awake_ = false;
    NotificationThread::install(&delivery);
    qAddPostRoutine(&EventLoopDelivery::uninstall);
}

void EventLoopDelivery::uninstall() {
    auto& delivery = theDelivery();
    if (NotificationThread::installed() == &delivery)
        NotificationThread::install(nullptr);
    delivery.timer_.stop();
    QCoreApplication::removePostedEvents(&delivery);
}

void EventLoopDelivery::wake() {
    if (!awake_.exchange(true))
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

void EventLoopDelivery::customEvent(QEvent*) {
    if (timer_.isActive())
        return;
    auto const passed = sinceDelivery_.isValid() ? std::chrono::milliseconds(sinceDelivery_.elapsed()) : interval;
    if (passed >= interval)
        deliver();
    else
        timer_.start(static_cast<int>((interval - passed).count()), this);
}

void EventLoopDelivery::timerEvent(QTimerEvent*) {
    timer_.stop();
    deliver();
}

void EventLoopDelivery::deliver() {
    // Before the delivery: a report that comes meanwhile asks again.
    awake_ = false;
    bool const someWait = deliverWaiting(budget);
    sinceDelivery_.start();
    if (someWait)
        wake();
}

} // namespace Kolt
