#include <panel/window/StandardOutputTap.hpp>

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace Panel {

namespace {

void writeAll(int file, char const* data, ssize_t size) {
    while (size > 0) {
        auto const written = write(file, data, static_cast<std::size_t>(size));
        if (written < 0 && errno != EINTR)
            return;
        if (written > 0) {
            data += written;
            size -= written;
        }
    }
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
    std::array<pollfd, 2> waited{{{pipe_, POLLIN, 0}, {stop_, POLLIN, 0}}};
    bool stopped = false;
    while (!stopped) {
        if (poll(waited.data(), waited.size(), -1) < 0 && errno != EINTR)
            break;
        stopped = waited[1].revents != 0;
        while (forward())
            tellLines(false);
    }
    tellLines(true);
}

bool StandardOutputTap::forward() {
    std::array<char, 4096> buffer{};
    auto const count = read(pipe_, buffer.data(), buffer.size());
    if (count <= 0)
        return false;
    writeAll(realOutput_, buffer.data(), count);
    pending_.append(buffer.data(), static_cast<int>(count));
    return true;
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
