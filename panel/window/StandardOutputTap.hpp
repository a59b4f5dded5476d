#pragma once

#include <QByteArray>
#include <QObject>
#include <thread>

namespace Panel {

/// Listens to what the process writes to standard output, at the file descriptor, and so to plug-ins and child
/// processes as well. Everything still reaches the real standard output, unless its reader stops to read: what is then
/// printed after the first megabyte is only told of. It starts with the object and ends with it; several may be nested.
///
/// A thread of its own reads along: a long text printed at once never blocks the writer, whatever the event loop does.
/// Where the system gives no pipe the tap hears nothing.
class StandardOutputTap : public QObject {
    Q_OBJECT

public:
    explicit StandardOutputTap(QObject* parent = nullptr);
    ~StandardOutputTap() override;

signals:
    /// A line was printed, without its end. Emitted on another thread, so a receiver on the user-interface thread hears
    /// it when the event loop comes round. A last line without an end comes when the tap ends.
    void linePrinted(QString const& line);

private:
    void listen();
    bool take();
    void forward();
    void tellLines(bool all);

    int realOutput_ = -1;
    int pipe_ = -1;
    int stop_ = -1;
    // What was printed and not reported yet.
    QByteArray pending_;
    // What was printed and not written to the real output yet.
    QByteArray unwritten_;
    std::thread listener_;
};

} // namespace Panel
