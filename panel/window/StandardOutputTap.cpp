#include <panel/window/StandardOutputTap.hpp>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace Panel {

namespace {

// A pipe that can be written to takes this much at once without a wait.
constexpr int chunk = PIPE_BUF;

// What is kept for a reader that does not read, in bytes; what is printed beyond that is not forwarded.
constexpr int mostUnread = 1 << 20;

// How long the end waits for a reader that does not read, in milliseconds.
constexpr int lastWait = 500;

bool canBeWritten(int file) {
    pollfd waited{file, POLLOUT, 0};
    return poll(&waited, 1, 0) > 0;
}

} // namespace

StandardOutputTap::StandardOutputTap(QObject* parent) : QObject(parent) {
    std::array<int, 2> ends{};
    std::fflush(stdout);
    realOutput_ = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0);
    stop_ = eventfd(0, EFD_CLOEXEC);
    if (realOutput_ < 0 || stop_ < 0 || pipe2(ends.data(), O_CLOEXEC) != 0)
        return;
    pipe_ = ends[0];
    // The reader empties the pipe to its end when it stops; a child process may still hold the other end then.
    fcntl(pipe_, F_SETFL, O_NONBLOCK);
    dup2(ends[1], STDOUT_FILENO);
    close(ends[1]);
    listener_ = std::thread([this] { listen(); });
}

StandardOutputTap::~StandardOutputTap() {
    if (listener_.joinable()) {
        std::fflush(stdout);
        dup2(realOutput_, STDOUT_FILENO);
        eventfd_write(stop_, 1);
        listener_.join();
    }
    for (int const file : {realOutput_, pipe_, stop_}) {
        if (file >= 0)
            close(file);
    }
}

void StandardOutputTap::listen() {
    std::array<pollfd, 3> waited{{{pipe_, POLLIN, 0}, {stop_, POLLIN, 0}, {realOutput_, POLLOUT, 0}}};
    bool stopped = false;
    while (!stopped) {
        // The real output is waited for only where something is to be written: it is nearly always ready.
        if (poll(waited.data(), unwritten_.isEmpty() ? 2 : 3, -1) < 0 && errno != EINTR)
            break;
        stopped = waited[1].revents != 0;
        while (take())
            tellLines(false);
        forward();
    }
    // Nothing else comes; a reader that merely is slow gets the rest.
    pollfd output{realOutput_, POLLOUT, 0};
    while (!unwritten_.isEmpty() && poll(&output, 1, lastWait) > 0)
        forward();
    tellLines(true);
}

bool StandardOutputTap::take() {
    std::array<char, chunk> buffer{};
    auto const count = read(pipe_, buffer.data(), buffer.size());
    if (count <= 0)
        return false;
    if (unwritten_.size() < mostUnread)
        unwritten_.append(buffer.data(), static_cast<int>(count));
    pending_.append(buffer.data(), static_cast<int>(count));
    forward();
    return true;
}

void StandardOutputTap::forward() {
    while (!unwritten_.isEmpty() && canBeWritten(realOutput_)) {
        auto const size = static_cast<std::size_t>(qMin(unwritten_.size(), chunk));
        auto const written = write(realOutput_, unwritten_.constData(), size);
        if (written < 0 && errno == EINTR)
            continue;
        // Nobody reads any more, or the disk is full.
        unwritten_.remove(0, written < 0 ? unwritten_.size() : static_cast<int>(written));
    }
}

void StandardOutputTap::tellLines(bool all) {
    int start = 0;
    for (int end = pending_.indexOf('\n'); end >= 0; end = pending_.indexOf('\n', start)) {
        emit linePrinted(QString::fromUtf8(pending_.mid(start, end - start)));
        start = end + 1;
    }
    pending_.remove(0, start);
    if (all && !pending_.isEmpty())
        emit linePrinted(QString::fromUtf8(pending_));
}

} // namespace Panel
