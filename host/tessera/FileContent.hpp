#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <tessera/Export.hpp>

namespace Tessera {

/// The bytes of a file that others made, or why they are not read. Only a regular file up to a limit is read; a pipe or
/// a device, which may never begin or end, is refused at once. Any thread. Prints nothing.
class TALO_EXPORT FileContent {
public:
    /// Why a file is not read.
    enum class Problem {
        None,
        NotOpened,  ///< it does not exist or may not be read
        Folder,     ///< it is a folder
        NotRegular, ///< it is a pipe, a device or a socket
        TooLarge,   ///< it is larger than the limit
        NotRead     ///< reading failed
    };

    /// Reads a file of at most `limit` bytes. The name is in the system's encoding.
    static FileContent read(std::string const& file, std::uintmax_t limit);
    /// Looks whether read() would refuse the file, for one that is opened by other means; the bytes are empty.
    static FileContent check(std::string const& file, std::uintmax_t limit);

    /// Why it was not read; None if it was.
    Problem problem() const { return problem_; }
    /// Whether it was read.
    explicit operator bool() const { return problem_ == Problem::None; }
    /// The reason, without the name: "it is a folder", "it is larger than 16 MB", or what the system says. In English;
    /// only what the system says is in the user's language. Empty without a problem.
    std::string const& reason() const { return reason_; }
    /// The bytes; empty if there is a problem.
    std::string const& bytes() const { return bytes_; }

private:
    static FileContent refused(Problem problem, std::string reason);
    static FileContent failed(Problem problem);
    static FileContent checked(std::uint32_t mode, std::uintmax_t size, std::uintmax_t limit);
    /// `size` is what the file is expected to have.
    static FileContent readOpened(int descriptor, std::size_t size, std::uintmax_t limit);

    Problem problem_ = Problem::None;
    std::string reason_;
    std::string bytes_;
};

} // namespace Tessera
