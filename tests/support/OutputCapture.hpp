#pragma once

#include <string>
#include <sys/types.h>

/// Captures what the process writes to standard output from construction to destruction. It works on the file
/// descriptor, so it includes libraries loaded later and child processes. One instance at a time, used on the main
/// thread; any thread may write.
class OutputCapture {
public:
    OutputCapture();
    ~OutputCapture();
    OutputCapture(OutputCapture const&) = delete;
    OutputCapture& operator=(OutputCapture const&) = delete;

    /// Flushes, and returns everything printed since the last call.
    std::string take();

    /// Returns what has reached the file descriptor since the last call, without what the writer has not flushed.
    std::string takeWritten();

    /// Between these two calls the process writes to the real standard output. They do nothing while nothing is
    /// captured.
    static void suspend();
    static void resume();

private:
    int realOutput_ = -1;
    int captured_ = -1;
    off_t taken_ = 0;
};
