#include "support/OutputCapture.hpp"

#include <array>
#include <cerrno>
#include <cstdio>
#include <sys/mman.h>
#include <system_error>
#include <unistd.h>

namespace {

OutputCapture* capture = nullptr;

int checked(int result, char const* what) {
    if (result < 0) {
        throw std::system_error(errno, std::generic_category(), what);
    }
    return result;
}

void direct(int target) {
    std::fflush(stdout);
    checked(dup2(target, STDOUT_FILENO), "cannot direct standard output elsewhere");
}

} // namespace

OutputCapture::OutputCapture()
    : realOutput_(checked(dup(STDOUT_FILENO), "cannot keep standard output")),
      captured_(checked(memfd_create("standard output", MFD_CLOEXEC), "cannot capture standard output")) {
    if (capture != nullptr) {
        throw std::logic_error("standard output is captured already");
    }
    direct(captured_);
    capture = this;
}

OutputCapture::~OutputCapture() {
    capture = nullptr;
    std::fflush(stdout);
    dup2(realOutput_, STDOUT_FILENO);
    close(realOutput_);
    close(captured_);
}

std::string OutputCapture::take() {
    std::fflush(stdout);
    return takeWritten();
}

std::string OutputCapture::takeWritten() {
    std::string text;
    std::array<char, 4096> buffer{};
    for (;;) {
        auto const count = pread(captured_, buffer.data(), buffer.size(), taken_);
        if (count <= 0) {
            return text;
        }
        text.append(buffer.data(), static_cast<std::size_t>(count));
        taken_ += count;
    }
}

void OutputCapture::suspend() {
    if (capture != nullptr) {
        direct(capture->realOutput_);
    }
}

void OutputCapture::resume() {
    if (capture != nullptr) {
        direct(capture->captured_);
    }
}
