#pragma once

#include <QObject>
#include <QTimer>
#include <tessera/Export.hpp>

namespace Talo {

/// Runs what the host's scheduler has waiting from the event loop: never inside the call that schedules, and each entry
/// when it is due. One for the process at a time. User-interface thread.
class TALO_EXPORT SchedulerDriver : public QObject {
    Q_OBJECT

public:
    /// Drives the process-wide scheduler from now on.
    explicit SchedulerDriver(QObject* parent = nullptr);
    ~SchedulerDriver() override;

private:
    void wait();
    void run();

    QTimer timer_;
};

} // namespace Talo
