#pragma once

#include <atomic>
#include <lattice/NotificationThread.hpp>
#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <tessera/Export.hpp>
#include <tessera/NoDestructor.hpp>

namespace Kolt {

/// Lets Qt's event loop deliver the changes that workers report. The first report is delivered at once, further ones at
/// most some 60 times a second and for a few milliseconds at a time, so that the event loop stays free however often
/// workers report. The object lives as long as the process.
class TALO_EXPORT EventLoopDelivery : public QObject, public NotificationThread {
    Q_OBJECT

public:
    /// Makes the calling thread the NotificationThread until the application object is destroyed. Nothing happens
    /// without an application object, and if a NotificationThread is installed. User-interface thread.
    static void install();

private:
    friend Tessera::NoDestructor<EventLoopDelivery>;
    EventLoopDelivery();
    ~EventLoopDelivery() override;
    static EventLoopDelivery& theDelivery();
    static void uninstall();

    void wake() override;
    void customEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void deliver();

    // Whether an event or the timer is under way that will deliver.
    std::atomic<bool> awake_{false};
    QBasicTimer timer_;
    QElapsedTimer sinceDelivery_;
};

} // namespace Kolt
