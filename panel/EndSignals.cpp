#include <panel/EndSignals.hpp>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace Panel {

namespace {

// A signal handler may do little more than write to a file; the event loop reads from the other end.
std::array<int, 2> pipeEnds{-1, -1};

void askToEnd(int) {
    int const error = errno;
    // A full pipe says the same already.
    [[maybe_unused]] auto const written = write(pipeEnds[1], "x", 1);
    errno = error;
}

void handle(int number, void (*handler)(int)) {
    struct sigaction action {};
    struct sigaction old {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    if (sigaction(number, nullptr, &old) == 0 && old.sa_handler != SIG_IGN)
        sigaction(number, &action, nullptr);
}

} // namespace

EndSignals::EndSignals(QObject* parent) : QObject(parent) {
    if (pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    notifier_ = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, &EndSignals::take);
    for (int const number : {SIGTERM, SIGHUP})
        handle(number, askToEnd);
}

EndSignals::~EndSignals() {
    if (!notifier_)
        return;
    for (int const number : {SIGTERM, SIGHUP})
        handle(number, SIG_DFL);
    delete notifier_;
    for (int& end : pipeEnds)
        close(std::exchange(end, -1));
}

void EndSignals::take() {
    std::array<char, 16> bytes{};
    while (read(pipeEnds[0], bytes.data(), bytes.size()) > 0) {
    }
    emit endRequested();
}

} // namespace Panel
