#pragma once

#include <QObject>
#include <QSocketNotifier>

namespace Panel {

/// Tells the event loop that the process is asked to end, by SIGTERM or SIGHUP, which then do not end it by themselves.
/// SIGHUP stays ignored where the program was started so (nohup). One for the process; as long as it lives.
/// User-interface thread.
class EndSignals : public QObject {
    Q_OBJECT

public:
    explicit EndSignals(QObject* parent = nullptr);
    ~EndSignals() override;

signals:
    /// The process shall end. Emitted on the thread of this object, by the event loop.
    void endRequested();

private:
    void take();

    QSocketNotifier* notifier_ = nullptr;
};

} // namespace Panel
