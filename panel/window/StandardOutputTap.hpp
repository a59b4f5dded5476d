#pragma once

#include <atomic>
#include <QByteArray>
#include <QObject>
#include <thread>
#include <vector>

namespace Panel {

/// Listens to what the process writes to standard output, at the file descriptor, and so to plug-ins and child
/// processes as well. Everything still reaches the real standard output, unless its reader stops to read: what is then
/// printed after the first megabyte is only told of. It starts with the object and ends with it; several may be nested.
///
/// A thread of its own reads along: a long text printed at once never blocks the writer, whatever the event loop does.
/// It keeps little: of a long line only the start is emitted, and lines that come faster than the receivers take them
/// are left out. Where the system gives no pipe the tap hears nothing.
class StandardOutputTap : public QObject {
    Q_OBJECT

public:
    /// Of a longer line so many bytes are emitted, and "…".
    static constexpr int LongestLine = 1 << 14;
    /// While so many bytes of lines are emitted and not received yet, further lines are left out.
    static constexpr int MostUnreceived = 1 << 23;

    explicit StandardOutputTap(QObject* parent = nullptr);
    ~StandardOutputTap() override;

signals:
    /// A line was printed, without its end. Emitted on another thread, so a receiver on the user-interface thread hears
    /// it when the event loop comes round. A last line without an end comes when the tap ends.
    void linePrinted(QString const& line);
    /// So many lines were left out here. Emitted as linePrinted is, or on the thread of this object.
    void linesMissed(int count);

private:
    void listen();
    bool take();
    void forward();
    /// Adds what was printed to the line, and emits each line that ends.
    void takeLines(char const* next, char const* end);
    void emitLine();
    /// Emits how many lines were left out, if any were.
    void emitMissed();
    /// Has the receivers' thread count what it has received.
    void countReceived();

    int realOutput_ = -1;
    int pipe_ = -1;
    int stop_ = -1;
    std::vector<char> buffer_;
    // The start of the line that has not ended yet.
    QByteArray line_;
    // Whether that line is longer.
    bool isCut_ = false;
    // What was printed, from `written_` on, and not written to the real output yet.
    QByteArray unwritten_;
    int written_ = 0;
    // In bytes: what was emitted and not received yet, and what was emitted since countReceived().
    std::atomic<int> unreceived_{0};
    int emitted_ = 0;
    // How many lines were left out and not reported yet.
    std::atomic<int> missed_{0};
    std::thread listener_;
};

} // namespace Panel
