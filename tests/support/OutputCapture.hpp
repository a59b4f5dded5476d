#pragma once

#include <string>
#include <sys/types.h>

/// Holds back what the process writes to standard output, at the file descriptor, so that libraries loaded later and
/// child processes are seen as well. It starts with the object and ends with it. One at a time; any thread may write,
/// the capture itself belongs to the main thread.
class OutputCapture {
public:
    OutputCapture();
    ~OutputCapture();
    OutputCapture(OutputCapture const&) = delete;
    OutputCapture& operator=(OutputCapture const&) = delete;

    /// Everything printed since the last call, flushed first.
    std::string take();

    /// What has reached the file descriptor since the last call: text that the writer did not flush is missing.
    std::string takeWritten();

    /// Between these two the process writes to the real standard output. Does nothing while nothing is captured.
    static void suspend();
    static void resume();

private:
    int realOutput_ = -1;
    int captured_ = -1;
    off_t taken_ = 0;
};
