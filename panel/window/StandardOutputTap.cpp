#include <panel/window/StandardOutputTap.hpp>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

namespace Panel {

namespace {

// A pipe that can be written to takes this much at once without a wait.
constexpr int chunk = PIPE_BUF;

// As much as a pipe holds. In bytes.
constexpr std::size_t readAtOnce = 1 << 16;

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
        if (poll(waited.data(), written_ == unwritten_.size() ? 2 : 3, -1) < 0 && errno != EINTR)
            break;
        stopped = waited[1].revents != 0;
        while (take())
            ;
        forward();
        countReceived();
    }
    // Nothing else comes; a reader that merely is slow gets the rest.
    pollfd output{realOutput_, POLLOUT, 0};
    while (written_ < unwritten_.size() && poll(&output, 1, lastWait) > 0)
        forward();
    if (!line_.isEmpty())
        emitLine();
}

bool StandardOutputTap::take() {
    buffer_.resize(readAtOnce);
    auto const count = read(pipe_, buffer_.data(), buffer_.size());
    if (count <= 0)
        return false;
    if (unwritten_.size() - written_ < mostUnread)
        unwritten_.append(buffer_.data(), static_cast<int>(count));
    forward();
    takeLines(buffer_.data(), buffer_.data() + count);
    return true;
}

void StandardOutputTap::forward() {
    while (written_ < unwritten_.size() && canBeWritten(realOutput_)) {
        auto const size = static_cast<std::size_t>(qMin(unwritten_.size() - written_, chunk));
        auto const written = write(realOutput_, unwritten_.constData() + written_, size);
        if (written < 0 && errno == EINTR)
            continue;
        // Nobody reads any more, or the disk is full.
        written_ = written < 0 ? unwritten_.size() : written_ + static_cast<int>(written);
    }
    // Not at each write, as the rest is moved.
    if (2 * written_ >= unwritten_.size()) {
        unwritten_.remove(0, written_);
        written_ = 0;
    }
}

void StandardOutputTap::takeLines(char const* next, char const* end) {
    while (next != end) {
        auto const* const lineEnd = std::find(next, end, '\n');
        auto const room = static_cast<std::ptrdiff_t>(LongestLine - line_.size());
        line_.append(next, static_cast<int>(std::min(room, lineEnd - next)));
        isCut_ = isCut_ || lineEnd - next > room;
        if (lineEnd == end)
            return;
        emitLine();
        next = lineEnd + 1;
    }
}

void StandardOutputTap::emitLine() {
    auto line = QString::fromUtf8(line_);
    int const bytes = line_.size() + 1;
    line_.clear();
    if (std::exchange(isCut_, false)) {
        // Of a character that was cut in two.
        while (line.endsWith(QChar(QChar::ReplacementCharacter)))
            line.chop(1);
        line += QChar(0x2026);
    }
    if (unreceived_ > MostUnreceived) {
        ++missed_;
        return;
    }
    emitMissed();
    unreceived_ += bytes;
    emitted_ += bytes;
    emit linePrinted(line);
    // Now and then, as many lines may come before the pipe is empty.
    if (emitted_ > MostUnreceived / 2)
        countReceived();
}

void StandardOutputTap::emitMissed() {
    if (int const missed = missed_.exchange(0); missed > 0)
        emit linesMissed(missed);
}

void StandardOutputTap::countReceived() {
    int const bytes = std::exchange(emitted_, 0);
    if (bytes == 0)
        return;
    // The receivers live on the thread of this object, and receive the lines before this call. Perhaps no line follows
    // those that were left out.
    auto const count = [this, bytes] {
        unreceived_ -= bytes;
        emitMissed();
    };
    QMetaObject::invokeMethod(this, count, Qt::QueuedConnection);
}

} // namespace Panel
