#include <tessera/FileContent.hpp>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace Tessera {

namespace {

/// Closes a descriptor at the end.
class Closer {
public:
    explicit Closer(int descriptor) : descriptor_(descriptor) {}
    ~Closer() { close(descriptor_); }
    Closer(Closer const&) = delete;
    Closer& operator=(Closer const&) = delete;

private:
    int const descriptor_;
};

std::string sizeText(std::uintmax_t bytes) {
    constexpr std::uintmax_t megabyte = 1 << 20;
    return bytes % megabyte == 0 ? std::to_string(bytes / megabyte) + " MB" : std::to_string(bytes) + " bytes";
}

} // namespace

FileContent FileContent::read(std::string const& file, std::uintmax_t limit) {
    // Looked at before it is opened, as opening a device may change it, and once more afterwards.
    if (auto looked = check(file, limit); !looked)
        return looked;
    // Without waiting for the other end of a pipe that took the file's place meanwhile.
    int const descriptor = open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0)
        return failed(Problem::NotOpened);
    Closer const closer(descriptor);
    struct stat status {};
    if (fstat(descriptor, &status) != 0)
        return failed(Problem::NotOpened);
    auto const opened = checked(status.st_mode, static_cast<std::uintmax_t>(status.st_size), limit);
    return opened ? readOpened(descriptor, static_cast<std::size_t>(status.st_size), limit) : opened;
}

FileContent FileContent::check(std::string const& file, std::uintmax_t limit) {
    struct stat status {};
    if (stat(file.c_str(), &status) != 0)
        return failed(Problem::NotOpened);
    return checked(status.st_mode, static_cast<std::uintmax_t>(status.st_size), limit);
}

FileContent FileContent::refused(Problem problem, std::string reason) {
    FileContent content;
    content.problem_ = problem;
    content.reason_ = std::move(reason);
    return content;
}

FileContent FileContent::failed(Problem problem) {
    return refused(problem, std::generic_category().message(errno));
}

FileContent FileContent::checked(std::uint32_t mode, std::uintmax_t size, std::uintmax_t limit) {
    if (S_ISDIR(mode))
        return refused(Problem::Folder, "it is a folder");
    if (!S_ISREG(mode))
        return refused(Problem::NotRegular, "it is no regular file");
    if (size > limit)
        return refused(Problem::TooLarge, "it is larger than " + sizeText(limit));
    return {};
}

FileContent FileContent::readOpened(int descriptor, std::size_t size, std::uintmax_t limit) {
    FileContent content;
    content.bytes_.reserve(size);
    char block[65536];
    for (;;) {
        auto const count = ::read(descriptor, block, sizeof block);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return failed(Problem::NotRead);
        if (count == 0)
            return content;
        content.bytes_.append(block, static_cast<std::size_t>(count));
        // It may grow meanwhile, and the files that the kernel makes up have no size.
        if (content.bytes_.size() > limit)
            return checked(S_IFREG, content.bytes_.size(), limit);
    }
}

} // namespace Tessera
